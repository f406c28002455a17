#pragma once

#include "platform/Machine.h"
#include "session/Schedule.h"
#include "session/Settings.h"

#include <optional>
#include <string>

namespace gatewise {

/// What the boarding pass shows of a flight; a text that is absent leaves its label as it is.
struct PassTexts {
    std::string name, destination, origin, flight, aircraft, airline, meal, date, seat;
    std::optional<std::string> departs, arrives, flightClass;
};

PassTexts passTexts(const FlightRecord& flight, const Tables& tables, const Settings& settings,
                    const DateTime& now);

} // namespace gatewise
