#pragma once

#include "plan/PlanTable.h"
#include "schedule/Records.h"

#include <cstdint>
#include <string>
#include <string_view>

// From a plan number to the live flight plan. Nothing here fails: what cannot be read or computed is left
// out, and the plan is what the rest gives.

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

/// The files below the program's folder; `DataSetPath` begins with "\", as "\Data".
PlanFiles planFiles(std::string_view AppDir, std::string_view DataSetPath);

/// What a plan is made for. The tables and the flight outlive the call.
struct PlanInput {
    const Tables& tables;
    const FlightRecord& CurrentFlight;
    bool HaveAlternate = false;
    std::int32_t AlternateIndex = 0;
    PlanFiles files;
};

/// The whole retrieval of plan `planNumber` (from 1), which replaces the plan. Kept from the plan before: the
/// pointId of points that no navaid fills, and the numbers of an aircraft or airport that the tables do not
/// know.
void loadFlightPlan(Plan& plan, std::int32_t planNumber, const PlanInput& input);

/// Runways and radios of the plan's airports; the alternate's only when there is one.
void loadAirportFacilities(Plan& plan, const PlanInput& input);

} // namespace gatewise
