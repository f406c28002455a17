#pragma once

#include "schedule/Records.h"
#include "session/Flag.h"

#include <array>
#include <cstdint>
#include <string>

namespace gatewise {

/// The airports that are picked and the flight on the boarding pass.
struct Dispatch {
    std::int32_t DepartureIndex = 0;
    std::int32_t DestinationIndex = 0;
    std::int32_t AlternateIndex = 0;
    Flag HaveDeparture = kFalse;
    Flag HaveDestination = kFalse;
    Flag HaveAlternate = kFalse;
    FlightRecord CurrentFlight;
    std::string SelectMode = "departure"; // what the picker picks
    std::array<std::int32_t, 1000> FlightPicks{};
    std::int32_t FlightPickCount = -1;
};

} // namespace gatewise
