#include "platform/Profile.h"

#include "platform/Files.h"
#include "platform/Text.h"

#include <algorithm>

namespace gatewise {

namespace {

constexpr std::size_t kNone = static_cast<std::size_t>(-1);
constexpr std::size_t kTextLimit = 254; // a buffer of 255 characters holds one terminator

bool isSpace(char c) {
    return c == ' ' || c == '\t';
}

std::string_view body(std::string_view line) {
    const auto end = line.find_last_not_of("\r\n\x1A");
    return end == std::string_view::npos ? std::string_view() : line.substr(0, end + 1);
}

std::string_view stripped(std::string_view text) {
    while (!text.empty() && isSpace(text.front())) text.remove_prefix(1);
    while (!text.empty() && isSpace(text.back())) text.remove_suffix(1);
    return text;
}

/// Name of the section that a line opens; false for any other line.
bool sectionName(std::string_view line, std::string_view& name) {
    const std::string_view text = stripped(body(line));
    if (text.empty() || text.front() != '[') return false;
    const auto close = text.find(']');
    name = stripped(text.substr(1, close == std::string_view::npos ? close : close - 1));
    return true;
}

/// Position of "=" in a key line, npos for comments and everything else.
std::size_t equalsSign(std::string_view line) {
    const std::string_view text = body(line);
    const std::string_view inner = stripped(text);
    if (inner.empty() || inner.front() == ';') return std::string_view::npos;
    return text.find('=');
}

} // namespace

Profile::Profile(std::string_view content) {
    while (!content.empty()) {
        auto end = content.find_first_of("\r\n");
        if (end == std::string_view::npos)
            end = content.size();
        else if (content.substr(end, 2) == "\r\n")
            end += 2;
        else
            end += 1;
        lines_.emplace_back(content.substr(0, end));
        content.remove_prefix(end);
    }
}

std::size_t Profile::sectionLine(std::string_view section) const {
    for (std::size_t i = 0; i < lines_.size(); ++i) {
        std::string_view name;
        if (sectionName(lines_[i], name) && equalNoCase(name, stripped(section))) return i;
    }
    return kNone;
}

std::size_t Profile::sectionEnd(std::size_t start) const {
    std::size_t i = start + 1;
    std::string_view name;
    while (i < lines_.size() && !sectionName(lines_[i], name)) ++i;
    return i;
}

std::size_t Profile::keyLine(std::size_t start, std::string_view key) const {
    const std::size_t end = sectionEnd(start);
    for (std::size_t i = start + 1; i < end; ++i) {
        const auto equals = equalsSign(lines_[i]);
        if (equals == std::string_view::npos) continue;
        if (equalNoCase(stripped(std::string_view(lines_[i]).substr(0, equals)), stripped(key))) return i;
    }
    return kNone;
}

bool Profile::find(std::string_view section, std::string_view key, std::string& value) const {
    const std::size_t start = sectionLine(section);
    if (start == kNone) return false;
    const std::size_t line = keyLine(start, key);
    if (line == kNone) return false;
    std::string_view text = stripped(body(lines_[line]).substr(equalsSign(lines_[line]) + 1));
    const bool quoted =
        text.size() >= 2 && (text.front() == '"' || text.front() == '\'') && text.back() == text.front();
    value = quoted ? text.substr(1, text.size() - 2) : text;
    return true;
}

void Profile::set(std::string_view section, std::string_view key, std::string_view value) {
    const auto entry = [&] { return std::string(key).append("=").append(value).append("\r\n"); };
    const auto closeLine = [&](std::size_t i) {
        // An end-of-text mark (1A) belongs to no value, but it does not end the line either.
        if (const char last = lines_[i].back(); last != '\r' && last != '\n') lines_[i] += "\r\n";
    };
    std::size_t start = sectionLine(section);
    if (start == kNone) {
        if (!lines_.empty()) closeLine(lines_.size() - 1);
        lines_.push_back("[" + std::string(section) + "]\r\n");
        lines_.push_back(entry());
        return;
    }
    const std::size_t found = keyLine(start, key);
    if (found != kNone) {
        const std::string& line = lines_[found];
        const std::string_view text = body(line);
        std::size_t from = equalsSign(line) + 1;
        std::size_t to = text.size();
        // The blanks around the old value stay, but not next to blanks that the value brings itself: they
        // would grow with every write.
        const bool blankFirst = !value.empty() && isSpace(value.front());
        const bool blankLast = !value.empty() && isSpace(value.back());
        while (!blankFirst && from < text.size() && isSpace(text[from])) ++from;
        while (!blankLast && to > from && isSpace(text[to - 1])) --to;
        lines_[found] = line.substr(0, from).append(value).append(line.substr(to));
        return;
    }
    std::size_t at = sectionEnd(start);
    while (at > start + 1 && stripped(body(lines_[at - 1])).empty()) --at;
    closeLine(at - 1);
    lines_.insert(lines_.begin() + static_cast<std::ptrdiff_t>(at), entry());
}

std::string Profile::content() const {
    std::string out;
    for (const auto& line : lines_) out += line;
    return out;
}

std::string textIn(const Profile& profile, std::string_view section, std::string_view key) {
    std::string value;
    if (!profile.find(section, key, value)) return {};
    value.resize(std::min(value.size(), kTextLimit));
    std::replace(value.begin(), value.end(), '\0', ' ');
    return std::string(trimmed(value));
}

int numberIn(const Profile& profile, std::string_view section, std::string_view key) {
    std::string value;
    if (!profile.find(section, key, value)) return 0;
    std::string_view text = stripped(value);
    const bool negative = !text.empty() && text.front() == '-';
    if (!text.empty() && (text.front() == '-' || text.front() == '+')) text.remove_prefix(1);
    std::uint32_t number = 0;
    for (const char c : text) {
        if (c < '0' || c > '9') break;
        number = number * 10 + static_cast<std::uint32_t>(c - '0');
    }
    return static_cast<int>(negative ? 0U - number : number);
}

Profile loadProfile(std::string_view file) {
    const auto bytes = files::readAll(file);
    if (!bytes) return {};
    return Profile(std::string_view(reinterpret_cast<const char*>(bytes->data()), bytes->size()));
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
    std::error_code error;
    const auto bytes = files::readAll(file, &error);
    // A file that is there but cannot be read must not be taken for an empty one and overwritten.
    if (!bytes && error != std::errc::no_such_file_or_directory) return error;
    Profile profile;
    if (bytes)
        profile = Profile(std::string_view(reinterpret_cast<const char*>(bytes->data()), bytes->size()));
    for (const auto& value : values) profile.set(value.section, value.key, value.value);
    return files::replace(file, profile.content());
}

} // namespace gatewise
