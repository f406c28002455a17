#include "scripts/Wine.h"

#include "platform/Text.h"
#include "scripts/Transcript.h"

#include <array>
#include <charconv>

namespace gatewise::scripts::wine {

namespace {

/// In an answer a "\" stands doubled, in the words of an error alone.
std::string forward(const std::string& line) {
    std::string out = replaceAll(line, "\\\\", "/");
    return line.starts_with("error: ") ? replaceAll(out, "\\", "/") : out;
}

/// The length of the number with a point that begins at `at`; 0 where none does.
std::size_t numberAt(std::string_view line, std::size_t at) {
    constexpr std::string_view kDigits = "0123456789";
    const auto point = std::min(line.find_first_not_of(kDigits, at), line.size());
    if (point == at || point + 1 >= line.size() || line[point] != '.') return 0;
    return std::min(line.find_first_not_of(kDigits, point + 1), line.size()) - at;
}

/// Numbers that fill a double, at two digits less.
std::string shortened(const std::string& line) {
    constexpr std::size_t kFull = 13; // a point and more than eleven digits
    std::string out;
    for (std::size_t at = 0; at < line.size();) {
        const std::size_t length = std::max<std::size_t>(numberAt(line, at), 1);
        const std::string_view piece = std::string_view(line).substr(at, length);
        at += length;
        if (length < kFull) {
            out += piece;
            continue;
        }
        double value = 0;
        std::from_chars(piece.data(), piece.data() + piece.size(), value);
        std::array<char, 40> digits{};
        const auto end = std::to_chars(digits.begin(), digits.end(), value, std::chars_format::general, 12);
        out.append(digits.begin(), end.ptr);
    }
    return out;
}

} // namespace

std::string folderThere(const std::filesystem::path& folder) {
    return "Z:" + std::filesystem::absolute(folder).string();
}

bool sameLine(const std::string& expected, const std::string& line) {
    return matches(shortened(forward(expected)), shortened(forward(line)));
}

} // namespace gatewise::scripts::wine
