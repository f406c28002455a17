#include "platform/Utf8.h"

#include <array>

namespace gatewise {

namespace {

bool isSurrogate(char32_t point) {
    return point >= 0xD800 && point <= 0xDFFF;
}

} // namespace

void appendUtf8(std::string& out, char32_t point) {
    if (isSurrogate(point) || point > 0x10FFFF) point = kReplacement;
    const auto lead = [&](unsigned mark, unsigned shift) {
        out += static_cast<char>(mark | (point >> shift));
    };
    const auto follow = [&](unsigned shift) { out += static_cast<char>(0x80U | ((point >> shift) & 0x3FU)); };
    if (point < 0x80) {
        lead(0, 0);
    } else if (point < 0x800) {
        lead(0xC0, 6), follow(0);
    } else if (point < 0x10000) {
        lead(0xE0, 12), follow(6), follow(0);
    } else {
        lead(0xF0, 18), follow(12), follow(6), follow(0);
    }
}

std::size_t decodeUtf8(std::string_view text, std::size_t at, char32_t& point) {
    const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
    const unsigned first = byte(at);
    if (first < 0x80) {
        point = first;
        return 1;
    }
    std::size_t length = 0;
    if ((first & 0xE0U) == 0xC0U)
        length = 2;
    else if ((first & 0xF0U) == 0xE0U)
        length = 3;
    else if ((first & 0xF8U) == 0xF0U)
        length = 4;
    if (length == 0 || length > text.size() - at) return 0;
    point = first & (0xFFU >> (length + 1));
    for (std::size_t i = 1; i < length; ++i) {
        if ((byte(at + i) & 0xC0U) != 0x80U) return 0;
        point = (point << 6U) | (byte(at + i) & 0x3FU);
    }
    static constexpr std::array<char32_t, 5> kSmallest = {0, 0, 0x80, 0x800, 0x10000};
    return point < kSmallest[length] || isSurrogate(point) || point > 0x10FFFF ? 0 : length;
}

bool isUtf8(std::string_view text) {
    char32_t point = 0;
    for (std::size_t at = 0, length = 0; at < text.size(); at += length) {
        length = decodeUtf8(text, at, point);
        if (length == 0) return false;
    }
    return true;
}

} // namespace gatewise
