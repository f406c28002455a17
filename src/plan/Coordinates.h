#pragma once

#include "platform/Numbers.h"

#include <cstdint>
#include <string>

// Positions and altitudes as texts. Plan files carry "." as decimal point whatever the locale writes; the
// printed plan keeps the locale's sign until it is whole.

namespace gatewise {

/// A position's degrees, whole and toward zero, and its minutes; both without sign.
struct Angle {
    double degrees;
    double minutes;
};
Angle splitAngle(float value);

/// "N47* 27.00'": degrees without leading zeros, minutes in "00.00". 0 is north and east.
std::string latitudeText(float latitude, const NumberLocale& locale);
std::string longitudeText(float longitude, const NumberLocale& locale);

/// "+012500.00"; "+000000.00" for everything below 1 foot.
std::string altitudeText(std::int32_t altitude, const NumberLocale& locale);

/// "N47 27.0" and "W122 18.6" for the printed plan. 0 is south and west.
std::string latitudeTicket(float latitude, const NumberLocale& locale);
std::string longitudeTicket(float longitude, const NumberLocale& locale);

} // namespace gatewise
