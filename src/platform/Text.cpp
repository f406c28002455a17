#include "platform/Text.h"

#include "platform/Utf8.h"

#include <array>
#include <charconv>
#include <cstdint>
#include <cstdlib>

namespace gatewise {

namespace {

// Unicode of the codes 0x80 to 0x9F; 0 marks the five that the page leaves open.
constexpr std::array<std::uint16_t, 32> kHighControls = {
    0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};

unsigned codePoint(unsigned char byte) {
    if (byte >= 0x80 && byte < 0xA0 && kHighControls[byte - 0x80U] != 0) return kHighControls[byte - 0x80U];
    return byte;
}

std::optional<char> byteOf(unsigned point) {
    if (point < 0x80 || (point >= 0xA0 && point <= 0xFF)) return static_cast<char>(point);
    for (std::size_t i = 0; i < kHighControls.size(); ++i) {
        if (codePoint(static_cast<unsigned char>(0x80 + i)) == point) return static_cast<char>(0x80 + i);
    }
    return std::nullopt;
}

struct PageText {
    std::string text;
    bool whole = true; // every character has its place on the page
};

PageText pageText(std::string_view utf8) {
    PageText out;
    out.text.reserve(utf8.size());
    for (std::size_t at = 0; at < utf8.size();) {
        char32_t point = 0;
        std::size_t length = decodeUtf8(utf8, at, point);
        if (length == 0) {
            length = 1;
            point = kReplacement;
        }
        const auto byte = byteOf(point);
        out.text += byte.value_or('?');
        out.whole = out.whole && byte.has_value();
        at += length;
    }
    return out;
}

} // namespace

std::string_view trimmed(std::string_view text) {
    const auto first = text.find_first_not_of(' ');
    if (first == std::string_view::npos) return {};
    return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

namespace {

constexpr char upperOf(char c) {
    const auto u = static_cast<unsigned char>(c);
    if ((u >= 'a' && u <= 'z') || (u >= 0xE0 && u <= 0xFE && u != 0xF7)) return static_cast<char>(u - 0x20);
    switch (u) {
    case 0x9A:
        return static_cast<char>(0x8A);
    case 0x9C:
        return static_cast<char>(0x8C);
    case 0x9E:
        return static_cast<char>(0x8E);
    case 0xFF:
        return static_cast<char>(0x9F);
    default:
        return c;
    }
}

/// The fields of all airports go through it when a data set is loaded.
constexpr auto kUpperCase = [] {
    std::array<char, 256> out{};
    for (std::size_t u = 0; u < out.size(); ++u) out[u] = upperOf(static_cast<char>(u));
    return out;
}();

} // namespace

char upperCase(char c) {
    return kUpperCase[static_cast<unsigned char>(c)];
}

char lowerCase(char c) {
    const auto u = static_cast<unsigned char>(c);
    if ((u >= 'A' && u <= 'Z') || (u >= 0xC0 && u <= 0xDE && u != 0xD7)) return static_cast<char>(u + 0x20);
    switch (u) {
    case 0x8A:
        return static_cast<char>(0x9A);
    case 0x8C:
        return static_cast<char>(0x9C);
    case 0x8E:
        return static_cast<char>(0x9E);
    case 0x9F:
        return static_cast<char>(0xFF);
    default:
        return c;
    }
}

std::string upperCase(std::string_view text) {
    std::string out(text);
    std::transform(out.begin(), out.end(), out.begin(), [](char c) { return upperCase(c); });
    return out;
}

std::string lowerCase(std::string_view text) {
    std::string out(text);
    std::transform(out.begin(), out.end(), out.begin(), [](char c) { return lowerCase(c); });
    return out;
}

bool equalNoCase(std::string_view a, std::string_view b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                      [](char x, char y) { return upperCase(x) == upperCase(y); });
}

bool containsNoCase(std::string_view text, std::string_view part) {
    return std::search(text.begin(), text.end(), part.begin(), part.end(),
                       [](char x, char y) { return upperCase(x) == upperCase(y); }) != text.end() ||
           part.empty();
}

bool lessFolded(std::string_view a, std::string_view b) {
    return std::lexicographical_compare(a.begin(), a.end(), b.begin(), b.end(), [](char x, char y) {
        return static_cast<unsigned char>(upperCase(x)) < static_cast<unsigned char>(upperCase(y));
    });
}

std::string joined(std::initializer_list<std::string_view> parts) {
    std::string text;
    for (const auto part : parts) text += part;
    return text;
}

std::string replaceAll(std::string_view text, std::string_view from, std::string_view to) {
    if (from.empty()) return std::string(text);
    std::string out;
    std::size_t at = 0;
    for (;;) {
        const auto hit = text.find(from, at);
        if (hit == std::string_view::npos) break;
        out.append(text.substr(at, hit - at)).append(to);
        at = hit + from.size();
    }
    out.append(text.substr(at));
    return out;
}

std::string utf8FromText(std::string_view text) {
    std::string out;
    out.reserve(text.size());
    for (const char c : text) appendUtf8(out, codePoint(static_cast<unsigned char>(c)));
    return out;
}

std::string textFromUtf8(std::string_view utf8) {
    return pageText(utf8).text;
}

std::optional<std::string> exactTextFromUtf8(std::string_view utf8) {
    PageText out = pageText(utf8);
    if (!out.whole) return std::nullopt;
    return std::move(out.text);
}

std::optional<int> parseInteger(std::string_view text) {
    text = trimmed(text);
    if (text.size() > 1 && text.front() == '+' && text[1] != '-') text.remove_prefix(1);
    int value = 0;
    const auto* last = text.data() + text.size();
    const auto [end, error] = std::from_chars(text.data(), last, value);
    if (error != std::errc() || end != last) return std::nullopt;
    return value;
}

double leadingNumber(std::string_view text) {
    text = trimmed(text);
    if (!text.empty() && text.front() == '+') text.remove_prefix(1);
    double value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    return error == std::errc() && value - value == 0 ? value : 0;
}

} // namespace gatewise
