#include "platform/Files.h"
#include "platform/Profile.h"

#include <algorithm>

namespace gatewise {

namespace {

constexpr std::size_t kTextLimit = 254; // a buffer of 255 characters holds one terminator

struct NumberBase {
    std::string_view prefix;
    std::uint32_t base;
};
constexpr NumberBase kBases[] = {{"0x", 16}, {"0o", 8}, {"0b", 2}};

/// The value of a digit of any base, above all bases for other characters.
std::uint32_t digitValue(char c) {
    if (c >= '0' && c <= '9') return static_cast<std::uint32_t>(c - '0');
    const char lower = c >= 'A' && c <= 'Z' ? static_cast<char>(c + 'a' - 'A') : c;
    return lower >= 'a' && lower <= 'f' ? static_cast<std::uint32_t>(lower - 'a' + 10) : 99;
}

std::uint32_t digitsOf(std::string_view text) {
    std::uint32_t base = 10;
    for (const NumberBase& row : kBases) {
        if (!text.starts_with(row.prefix)) continue;
        base = row.base;
        text.remove_prefix(row.prefix.size());
        break;
    }
    std::uint32_t number = 0;
    for (const char c : text) {
        if (digitValue(c) >= base) break;
        number = number * base + digitValue(c);
    }
    return number;
}

} // namespace

std::string textIn(const Profile& profile, std::string_view section, std::string_view key) {
    std::string value = profile.find(section, key).value_or("");
    value.resize(std::min(value.size(), kTextLimit));
    std::replace(value.begin(), value.end(), '\0', ' ');
    return std::string(trimmed(value));
}

int numberIn(const Profile& profile, std::string_view section, std::string_view key) {
    const std::string value = profile.find(section, key).value_or("");
    std::string_view text = profile::stripped(value);
    const bool negative = !text.empty() && text.front() == '-';
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) text.remove_prefix(1);
    const std::uint32_t number = digitsOf(text);
    return static_cast<int>(negative ? 0U - number : number);
}

Profile loadProfile(std::string_view file, std::error_code* error) {
    auto bytes = files::readAll(file, error);
    return bytes ? Profile(std::move(*bytes)) : Profile();
}

std::string contentWith(Bytes file, const std::vector<ProfileValue>& values) {
    Profile profile(std::move(file));
    for (const auto& value : values) profile.set(value.section, value.key, value.value);
    return profile.content();
}

std::string ReadText(std::string_view section, std::string_view key, std::string_view file) {
    return textIn(loadProfile(file), section, key);
}

int ReadNumber(std::string_view section, std::string_view key, std::string_view file) {
    return numberIn(loadProfile(file), section, key);
}

std::error_code WriteValue(std::string_view section, std::string_view key, std::string_view value,
                           std::string_view file) {
    return WriteValues({{std::string(section), std::string(key), std::string(value)}}, file);
}

std::error_code WriteValues(const std::vector<ProfileValue>& values, std::string_view file) {
    return files::rewrite(file, [&](Bytes old) -> std::optional<Bytes> {
        const std::string content = contentWith(std::move(old), values);
        return Bytes(content.begin(), content.end());
    });
}

} // namespace gatewise
