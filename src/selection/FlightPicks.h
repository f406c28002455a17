#pragma once

#include "schedule/Records.h"

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

// The flights between two airports on the chosen day, as the flight list shows them.

namespace gatewise {

inline constexpr std::int32_t kFreeSlot = 999999;

struct FlightPickList {
    std::array<std::int32_t, 1000> FlightPicks{}; // positions in the flight list, kFreeSlot behind them
    std::int32_t FlightPickCount = -1;            // upper index in use
    bool overflow = false; // more flights than slots: the list is full and FlightPickCount is not set
};

/// Flights whose DestinationIata equals the code, all three characters, and that fly on `day` (0 for any).
FlightPickList pickFlights(const std::vector<FlightRecord>& flights, std::string_view destinationIata,
                           int day);

/// A line of the flight list.
struct FlightLine {
    std::string text; // " AA 12"
    std::string key;  // "Flight" and the position
    std::string equipment, departs, arrives;
};

FlightLine flightLine(const Tables& tables, const std::vector<FlightRecord>& flights, std::int32_t position);

/// Position that a key names; nothing when it names none.
std::optional<std::int32_t> positionOfKey(std::string_view key);

/// All that is known about one flight, as the details show it.
struct FlightInfoTexts {
    std::string origin, arrival, flight_info, dept_time, arr_time, miles, Class, meal;
    std::array<std::string, 7> days; // Monday to Sunday: " " or "Y"
};

FlightInfoTexts flightInfoTexts(const Tables& tables, const FlightRecord& flight);

} // namespace gatewise
