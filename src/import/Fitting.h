#pragma once

#include <string>
#include <string_view>

// Texts of the sources as fields of fixed width hold them.

namespace gatewise::importer {

/// Windows-1252, transliterated where the page lacks a character, without control characters and blanks at
/// the ends. What is no UTF-8 is read as Windows-1252.
std::string ownText(std::string_view utf8);

/// At most `width` characters, cut behind a whole word where one ends in the last third.
std::string fitted(std::string text, std::size_t width);

/// An airport's name as the board has room for it: "Alpha International Airport" is "Alpha Intl".
std::string airportName(std::string_view utf8);

} // namespace gatewise::importer
