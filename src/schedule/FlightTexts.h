#pragma once

#include "platform/Machine.h"
#include "schedule/Records.h"

#include <optional>
#include <string>
#include <string_view>

// How airports and flights are written on the screens and in file names.

namespace gatewise {

/// "City - Name (IATA)", all trimmed: a line of the picker.
std::string airportListText(const AirportRecord& airport);
/// The same with a blank in front: the labels of the dispatch.
std::string airportText(const AirportRecord& airport);
/// "ICAO - City - Name (IATA)", all trimmed: the home airport.
std::string homeText(const AirportRecord& airport);
/// "ICAO - Name (IATA)" with both codes as stored: a hit of an airport search.
std::string airportHitText(const AirportRecord& airport);

/// "Airline Flight 123 LAX to JFK": the one text that names a flight in every file.
std::string flightStem(const Tables& tables, const FlightRecord& flight);

/// "0735": a time of day HHMM, also a flight number, under the format "0000".
std::string fourDigits(int value);

/// A time HHMM as the boarding pass prints it ("145P", "1205A"); nothing for exactly 1300 and for times below
/// 0, where the label keeps what it shows.
std::optional<std::string> passTime(int hhmm);

/// "15JUN": the day of issue on the pass.
std::string passDate(const DateTime& today);

/// Seat by the second of the minute, 0 to 59: "1B" to "15A".
std::string seatText(int second);

/// Classes that a flight offers; empty for an unknown code.
std::string_view classText(std::string_view ClassCode);

/// The class on the pass; nothing for an unknown code, where the label keeps what it shows.
std::optional<std::string_view> passClass(std::string_view ClassCode);

} // namespace gatewise
