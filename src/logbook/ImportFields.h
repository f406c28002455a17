#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <utility>

// The fields of other log books, as they write them.

namespace gatewise {

/// The whole text in Windows-1252, from UTF-16 where a byte-order mark says so and from UTF-8 where it is
/// that; without the mark.
std::string importedText(std::string_view bytes);

/// Control characters become blanks.
void blankControls(std::string& cell);

/// Letters and digits of a header in lower case: "Departure Place" and "departure_place" are the same.
std::string headerName(std::string_view cell);

/// Day serial of 2002-06-15, 2002/06/15, 20020615, 15.06.2002, 15 Jun 2002, June 15, 2002 and, by `dayFirst`,
/// of 15/06/2002 or 06/15/2002, also with dashes; a time behind it is passed over.
std::optional<double> importedDate(std::string_view text, bool dayFirst);
/// Whether a date with slashes or dashes can only be read with the day first.
bool saysDayFirst(std::string_view text);

/// HHMM of 7:35, 07:35:00, 0735, with or without a date before it; -1 for anything else.
int importedTime(std::string_view text);

/// Hours of 1.5, 1,5, 1:30 and 1+30, 0 to 99.9; 0 for anything else.
double importedHours(std::string_view text);

/// The number of "AA 123" or "123": its last digits; 0 without any, or with more than it can hold.
std::int16_t flightNumber(std::string_view text);

/// The airline's code of "AA 123" or "BAW12": two or three letters and digits before the number; else empty.
std::string flightCarrier(std::string_view text);

/// First and last word of "KATL DCT KORD" or "KATL-KORD"; empty with fewer than two.
std::pair<std::string, std::string> routeEnds(std::string_view text);

} // namespace gatewise
