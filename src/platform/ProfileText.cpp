#include "platform/ProfileText.h"

#include "platform/Text.h"
#include "platform/Utf8.h"

#include <algorithm>

namespace gatewise {

namespace {

constexpr std::string_view kUtf8Mark = "\xEF\xBB\xBF";
constexpr std::string_view kLittleMark = "\xFF\xFE";
constexpr std::string_view kBigMark = "\xFE\xFF";

bool beginsWith(ByteView file, std::string_view mark) {
    return file.size() >= mark.size() &&
           std::equal(mark.begin(), mark.end(), file.begin(),
                      [](char a, auto b) { return static_cast<std::uint8_t>(a) == b; });
}

bool isHigh(char32_t unit) {
    return unit >= 0xD800 && unit < 0xDC00;
}
bool isLow(char32_t unit) {
    return unit >= 0xDC00 && unit < 0xE000;
}

Bytes utf8FromUtf16(ByteView file, bool big) {
    const auto unit = [&](std::size_t at) -> char32_t {
        return big ? static_cast<char32_t>(file[at] << 8U | file[at + 1])
                   : static_cast<char32_t>(file[at + 1] << 8U | file[at]);
    };
    std::string out;
    for (std::size_t at = 2; at + 1 < file.size(); at += 2) {
        char32_t point = unit(at);
        if (isHigh(point) && at + 3 < file.size() && isLow(unit(at + 2))) {
            point = 0x10000 + ((point - 0xD800) << 10U) + (unit(at + 2) - 0xDC00);
            at += 2;
        }
        appendUtf8(out, point);
    }
    return {out.begin(), out.end()};
}

void appendUnit(std::string& out, char32_t unit, bool big) {
    const auto low = static_cast<char>(unit & 0xFFU);
    const auto high = static_cast<char>(unit >> 8U & 0xFFU);
    out += big ? high : low;
    out += big ? low : high;
}

std::string utf16FromUtf8(std::string_view text, bool big) {
    std::string out(big ? kBigMark : kLittleMark);
    for (std::size_t at = 0; at < text.size();) {
        char32_t point = kReplacement;
        at += std::max<std::size_t>(decodeUtf8(text, at, point), 1);
        if (point >= 0x10000) {
            appendUnit(out, 0xD800 + ((point - 0x10000) >> 10U), big);
            point = 0xDC00 + ((point - 0x10000) & 0x3FFU);
        }
        appendUnit(out, point, big);
    }
    return out;
}

} // namespace

ProfileCoding codingOf(ByteView file) {
    if (beginsWith(file, kUtf8Mark)) return ProfileCoding::Utf8;
    if (beginsWith(file, kLittleMark)) return ProfileCoding::Utf16Little;
    return beginsWith(file, kBigMark) ? ProfileCoding::Utf16Big : ProfileCoding::Page;
}

Bytes unmarked(Bytes file, ProfileCoding coding) {
    if (coding == ProfileCoding::Page) return file;
    if (coding != ProfileCoding::Utf8) return utf8FromUtf16(file, coding == ProfileCoding::Utf16Big);
    file.erase(file.begin(), file.begin() + static_cast<std::ptrdiff_t>(kUtf8Mark.size()));
    return file;
}

std::string marked(std::string lines, ProfileCoding coding) {
    if (coding == ProfileCoding::Page) return lines;
    if (coding != ProfileCoding::Utf8) return utf16FromUtf8(lines, coding == ProfileCoding::Utf16Big);
    return lines.insert(0, kUtf8Mark);
}

std::string valueFrom(std::string_view line, ProfileCoding coding) {
    if (coding == ProfileCoding::Page) return std::string(line);
    return exactTextFromUtf8(line).value_or(std::string(line));
}

std::string valueFor(std::string_view text, ProfileCoding coding) {
    return coding == ProfileCoding::Page || isUtf8(text) ? std::string(text) : utf8FromText(text);
}

std::string onOneLine(std::string_view text) {
    std::string out(text);
    std::replace_if(
        out.begin(), out.end(), [](char c) { return c == '\r' || c == '\n' || c == '\0' || c == '\x1A'; },
        ' ');
    return out;
}

} // namespace gatewise
