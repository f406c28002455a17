#pragma once

#include <string>
#include <string_view>

// Numbers and plain texts as other programs read them: a point for the decimals under every locale, no
// exponent.

namespace gatewise::programs {

/// "47.449000": so many places behind the point, 0 to 9. What is no number is 0, and zero has no sign.
std::string fixedFigure(double value, int places);

/// "47.449": the fewest digits that read back as the same value.
std::string exactFigure(double value);

/// A whole number with at least so many digits: "045".
std::string wholeFigure(long long value, int digits = 1);

/// The decimal that a 32-bit value was written as: the fewest digits that read back as the same 32-bit value.
/// A table's -122.3093 stays that, where the value itself would be -122.30930328. No more than nine places;
/// for numbers up to 1,000,000.
double decimalOf(float value);

/// Feet as metres, to the tenth of a millimetre: exact, so that the feet can be had back.
std::string metresFigure(int feet);

/// A text of the program without its accents, "Zürich" as "Zurich"; what ASCII has nothing for is left out.
std::string plainText(std::string_view text);

/// Upper-case letters, digits and the characters of `also` of a text without its accents, at most `longest`
/// of them; the rest is left out.
std::string codeText(std::string_view text, std::size_t longest, std::string_view also = {});

/// A text of the program in one line: control characters are blanks, and no two blanks stand together or at
/// an end.
std::string lineText(std::string_view text);

} // namespace gatewise::programs
