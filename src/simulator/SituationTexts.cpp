#include "simulator/SituationTexts.h"

#include <charconv>
#include <cmath>

namespace gatewise {

namespace {

/// A part of an angle. A locale with another sign sends it back through a number, which costs it its zeros.
std::string part(const char* format, float value, const NumberLocale& numbers) {
    if (numbers.DecimalSign == ".") return numbers.formatSingle(format, value);
    const std::string text = formatSingle(format, value);
    float back = 0;
    std::from_chars(text.data(), text.data() + text.size(), back);
    return text.empty() ? text : numbers.filed(numbers.plainSingle(back));
}

std::string angle(char positive, char other, float value, const NumberLocale& numbers) {
    const bool above = value > 0;
    if (!above) value = -value;
    const float degrees = std::trunc(value);
    const float remainder = value - degrees;
    const float minutesFull = remainder * 60.0F;
    const float minutes = std::trunc(minutesFull);
    const float seconds = (minutesFull - minutes) * 60.0F;
    return (above ? positive : other) + part("000", degrees, numbers) + "* " + part("00", minutes, numbers) +
           "' " + part("00.0000", seconds, numbers) + "\"";
}

} // namespace

std::string FormatLatitude(float value, const NumberLocale& numbers) {
    return angle('N', 'S', value, numbers);
}

std::string FormatLongitude(float value, const NumberLocale& numbers) {
    return angle('E', 'W', value, numbers);
}

std::string FormatAltitude(float value, const NumberLocale& numbers) {
    return "+" + numbers.filed(numbers.formatSingle("000000.00", value));
}

std::string FormatHeading(float value, const NumberLocale& numbers) {
    return numbers.filed(numbers.formatSingle("000.000000", value));
}

} // namespace gatewise
