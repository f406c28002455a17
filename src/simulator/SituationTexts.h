#pragma once

#include "platform/Numbers.h"

#include <string>

// Positions, altitudes and headings as a situation file spells them. All arithmetic is that of 32-bit floats.
// A value that is no finite number leaves its digits out.

namespace gatewise {

/// N040* 38' 23.1234" and E008* 07' 30.0000". 0 counts as south and west. Where the watched decimal sign is
/// not "." the numbers lose their leading zeros: N40* 38' 23.1234".
std::string FormatLatitude(float value, const NumberLocale& numbers);
std::string FormatLongitude(float value, const NumberLocale& numbers);

/// "+000123.00"; a value below 0 keeps its own sign as well: "+-000012.00".
std::string FormatAltitude(float value, const NumberLocale& numbers);

/// "012.500000"
std::string FormatHeading(float value, const NumberLocale& numbers);

} // namespace gatewise
