#include "plan/Coordinates.h"

#include <cmath>

namespace gatewise {

Angle splitAngle(float value) {
    const double whole = std::trunc(static_cast<double>(value));
    return {std::fabs(whole), std::fabs((static_cast<double>(value) - whole) * 60)};
}

namespace {

std::string fileText(char hemisphere, float value, const NumberLocale& locale) {
    const Angle angle = splitAngle(value);
    return hemisphere + formatNumber("0", angle.degrees) + "* " +
           locale.filed(locale.format("00.00", angle.minutes)) + "'";
}

std::string ticket(char hemisphere, const char* degrees, float value, const NumberLocale& locale) {
    const Angle angle = splitAngle(value);
    return hemisphere + formatNumber(degrees, angle.degrees) + " " + locale.format("00.0", angle.minutes);
}

} // namespace

std::string latitudeText(float latitude, const NumberLocale& locale) {
    return fileText(latitude >= 0 ? 'N' : 'S', latitude, locale);
}

std::string longitudeText(float longitude, const NumberLocale& locale) {
    return fileText(longitude >= 0 ? 'E' : 'W', longitude, locale);
}

std::string altitudeText(std::int32_t altitude, const NumberLocale& locale) {
    if (altitude < 1) return "+000000.00";
    return "+" + locale.filed(locale.format("000000.00", altitude));
}

std::string latitudeTicket(float latitude, const NumberLocale& locale) {
    return ticket(latitude > 0 ? 'N' : 'S', "00", latitude, locale);
}

std::string longitudeTicket(float longitude, const NumberLocale& locale) {
    return ticket(longitude > 0 ? 'E' : 'W', "000", longitude, locale);
}

} // namespace gatewise
