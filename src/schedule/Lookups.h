#pragma once

#include "schedule/Records.h"

#include <string>
#include <string_view>
#include <vector>

// Texts for the codes of a flight record. Comparisons are exact and case-sensitive; a code that is not found
// gives the empty text. The blank extra airport takes part like any other.

namespace gatewise {

/// What the filter is called when flights of all airlines are shown, and what is left of it where a code of
/// three characters is kept.
inline constexpr std::string_view kAnyAirline = "- Any Airline -";
inline constexpr std::string_view kAnyAirlineCode = "- A";

/// Trimmed city of the first airport whose Iata equals `code`, all characters.
std::string find_origin_name(const Tables& tables, std::string_view code);
std::string find_arrival_name(const Tables& tables, std::string_view code);

/// Code of the last airline of that trimmed name, three characters; kAnyAirline for itself; empty when the
/// data set has no such airline, so that the caller must fall back on the airlines of the board.
std::string find_airline_code(const Tables& tables, std::string_view name);

/// The fall-back's second half: code of the first airline of that trimmed name, or empty.
std::string firstAirlineCode(const Tables& tables, std::string_view name);

/// Trimmed name of the last airline of that code; both codes trimmed.
std::string find_airline(const Tables& tables, std::string_view code);

/// Fields of the last aircraft of that code, all three characters; untrimmed.
std::string find_aircraft(const Tables& tables, std::string_view code);
std::string find_pf_compnay(const Tables& tables, std::string_view code);
std::string find_pf_aircraft(const Tables& tables, std::string_view code);

/// Callsign of the last airline of that code, both codes trimmed; untrimmed.
std::string find_pf_callsign(const Tables& tables, std::string_view code);

/// "B L D S Bev " for the bits 1 to 16, with the blank behind the last; "None" without any.
std::string get_meal(int mask);

/// True when `day` is 0 (any day) or one of its bits is in the mask.
bool get_day(int mask, int day);

/// The airline codes of a list of flights, each once, in the order of first appearance.
std::vector<FixedText<3>> distinctAirlines(const std::vector<FlightRecord>& flights);

} // namespace gatewise
