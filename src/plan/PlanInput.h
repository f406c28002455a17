#pragma once

#include "schedule/Records.h"

#include <cstdint>
#include <string>

namespace gatewise {

/// Where the navigation files lie. Plans and airports belong to the data set, the others to the world.
struct PlanFiles {
    std::string Plans;
    std::string APT;
    std::string VOR;
    std::string NDB;
    std::string ISC;
    std::string JRT;
};

/// What a plan is made for. The tables and the flight outlive the call.
struct PlanInput {
    const Tables& tables;
    const FlightRecord& CurrentFlight;
    bool HaveAlternate = false;
    std::int32_t AlternateIndex = 0;
    PlanFiles files;
};

} // namespace gatewise
