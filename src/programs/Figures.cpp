#include "programs/Figures.h"

#include "platform/Text.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>

namespace gatewise::programs {

namespace {

/// The upper half of Windows-1252 in plain letters, from 0x80 on.
constexpr std::array<const char*, 128> kPlain = {
    "EUR", "",  "'", "f",  "\"", "...", "",   "",  "^", "",   "S", "<", "OE", "",  "Z",  "",   // 80
    "",    "'", "'", "\"", "\"", "*",   "-",  "-", "~", "TM", "s", ">", "oe", "",  "z",  "Y",  // 90
    " ",   "!", "",  "",   "",   "",    "|",  "",  "",  "",   "a", "<", "",   "-", "",   "",   // A0
    "",    "",  "2", "3",  "'",  "u",   "",   ".", "",  "1",  "o", ">", "",   "",  "",   "?",  // B0
    "A",   "A", "A", "A",  "A",  "A",   "AE", "C", "E", "E",  "E", "E", "I",  "I", "I",  "I",  // C0
    "D",   "N", "O", "O",  "O",  "O",   "O",  "x", "O", "U",  "U", "U", "U",  "Y", "TH", "ss", // D0
    "a",   "a", "a", "a",  "a",  "a",   "ae", "c", "e", "e",  "e", "e", "i",  "i", "i",  "i",  // E0
    "d",   "n", "o", "o",  "o",  "o",   "o",  "/", "o", "u",  "u", "u", "u",  "y", "th", "y",  // F0
};

constexpr double kNanos = 1e9; // of a degree a tenth of a millimetre

bool isCode(char c) {
    return (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9');
}

std::string withoutMinusZero(const std::string& text) {
    const bool zero = text.find_first_of("123456789") == std::string::npos;
    return zero && text.starts_with('-') ? text.substr(1) : text;
}

} // namespace

std::string fixedFigure(double value, int places) {
    std::array<char, 400> buffer{}; // the longest double has 309 digits in front of the point
    const auto [end, error] =
        std::to_chars(buffer.data(), buffer.data() + buffer.size(), std::isfinite(value) ? value : 0.0,
                      std::chars_format::fixed, places);
    return withoutMinusZero({buffer.data(), end});
}

std::string exactFigure(double value) {
    std::array<char, 400> buffer{};
    const auto [end, error] = std::to_chars(buffer.data(), buffer.data() + buffer.size(),
                                            std::isfinite(value) ? value : 0.0, std::chars_format::fixed);
    return withoutMinusZero({buffer.data(), end});
}

std::string wholeFigure(long long value, int digits) {
    std::string text = std::to_string(std::llabs(value));
    if (const auto width = static_cast<std::size_t>(digits); text.size() < width)
        text.insert(0, width - text.size(), '0');
    return value < 0 ? "-" + text : text;
}

double decimalOf(float value) {
    std::array<char, 64> buffer{};
    const auto written = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value);
    double decimal = 0;
    std::from_chars(buffer.data(), written.ptr, decimal);
    return std::round(decimal * kNanos) / kNanos;
}

std::string metresFigure(int feet) {
    return exactFigure(static_cast<double>(feet * 3048LL) / 10000);
}

std::string plainText(std::string_view text) {
    std::string out;
    for (const char c : text) {
        const auto code = static_cast<std::uint8_t>(c);
        if (code >= 0x80)
            out += kPlain[code - 0x80U];
        else
            out += c;
    }
    return out;
}

std::string codeText(std::string_view text, std::size_t longest, std::string_view also) {
    std::string out;
    for (const char c : upperCase(plainText(text))) {
        if (out.size() < longest && (isCode(c) || also.find(c) != std::string_view::npos)) out += c;
    }
    return out;
}

std::string lineText(std::string_view text) {
    std::string out;
    for (const char c : text) {
        const auto code = static_cast<std::uint8_t>(c);
        const bool blank = code <= ' ' || code == 0x7F || code == 0x81 || code == 0x8D || code == 0x8F ||
                           code == 0x90 || code == 0x9D;
        if (!blank)
            out += c;
        else if (!out.empty() && out.back() != ' ')
            out += ' ';
    }
    return std::string(trimmed(out));
}

} // namespace gatewise::programs
