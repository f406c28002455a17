#pragma once

#include <string>
#include <string_view>

namespace gatewise {

/// A number as text under a format of "0" (a digit always) and "#" (a digit if needed) with at most one ".":
/// "000.00", "#####0.0", "###.00000". Rounds half away from zero on the value's own decimal text: 15
/// significant digits for a double, 7 for a 32-bit float. A minus sign stands in front; `decimalSign` stands
/// for the point. A value that is no finite number gives the empty text.
std::string formatNumber(std::string_view format, double value, std::string_view decimalSign = ".");
std::string formatSingle(std::string_view format, float value, std::string_view decimalSign = ".");

/// Integers have no rounding: "0000" of 735 is "0735".
std::string formatInteger(std::string_view format, long long value);

/// The shortest text of at most 15 (7) significant digits, "0.5", "-12", "1E+15" (from 1E+15, singles from
/// 1E+07, and below 1E-05).
std::string plainDouble(double value, std::string_view decimalSign = ".");
std::string plainSingle(float value, std::string_view decimalSign = ".");

/// How this machine's locale writes numbers. Texts on the screen carry its decimal sign; texts for files go
/// through `filed`, which swaps the sign that the program watches for ".".
struct NumberLocale {
    std::string LocaleDecimal = "."; // what the conversion of a number to text puts in
    std::string DecimalSign =
        "."; // what is swapped out: the monetary sign, the plain one only when that is empty

    [[nodiscard]] std::string format(std::string_view format, double value) const {
        return formatNumber(format, value, LocaleDecimal);
    }
    [[nodiscard]] std::string formatSingle(std::string_view format, float value) const {
        return gatewise::formatSingle(format, value, LocaleDecimal);
    }
    [[nodiscard]] std::string plainDouble(double value) const {
        return gatewise::plainDouble(value, LocaleDecimal);
    }
    [[nodiscard]] std::string plainSingle(float value) const {
        return gatewise::plainSingle(value, LocaleDecimal);
    }

    /// Each DecimalSign in the text becomes ".", unless it is "." already.
    [[nodiscard]] std::string filed(std::string_view text) const;
};

/// Nearest whole number, ties to even.
double roundToEven(double value);

} // namespace gatewise
