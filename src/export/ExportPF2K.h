#pragma once

#include "export/ExportCommon.h"
#include "platform/Profile.h"
#include "schedule/Records.h"

#include <vector>

namespace gatewise {

/// What the settings add to the hand-off.
struct ProFlightOptions {
    std::string firstName, lastName; // the pilot's
    bool callsign = false;           // send the airline's callsign
    bool flightNumber = false;       // send the flight number
    int preflight = 0;               // minutes before departure
};

/// When the adventure starts: `departureTime` (HHMM) less the minutes before departure, "hh:mm".
std::string proFlightTime(int departureTime, int preflight);

/// The keys of section "FlightInfo" of PF2000.cfg, in the order of writing. A key that is not in the list
/// keeps what the other program has.
std::vector<ProfileValue> proFlightKeys(const Plan& plan, const FlightRecord& flight, const Tables& tables,
                                        const ProFlightOptions& options, const NumberLocale& numbers);

} // namespace gatewise
