#pragma once

#include <cstddef>
#include <string>
#include <string_view>

// Single characters in UTF-8; Text.h turns whole texts.

namespace gatewise {

/// Stands in a text for bytes that are no character.
inline constexpr char32_t kReplacement = 0xFFFD;

/// Appends a code point up to 10FFFF; halves of a surrogate pair become the replacement character.
void appendUtf8(std::string& out, char32_t point);

/// Reads the sequence at `at`, which lies in the text. Its length; 0 when it is malformed, overlong, half of
/// a surrogate pair or above 10FFFF.
std::size_t decodeUtf8(std::string_view text, std::size_t at, char32_t& point);

/// Whether the whole text is UTF-8.
bool isUtf8(std::string_view text);

} // namespace gatewise
