#pragma once

#include "plan/PlanInput.h"
#include "plan/PlanTable.h"

#include <cstdint>
#include <string_view>

// From a plan number to the live flight plan. Nothing here fails: what cannot be read or computed is left
// out, and the plan is what the rest gives.

namespace gatewise {

/// The files below the program's folder; `DataSetPath` begins with "\", as "\Data".
PlanFiles planFiles(std::string_view AppDir, std::string_view DataSetPath);

/// The whole retrieval of plan `planNumber` (from 1), which replaces the plan. Kept from the plan before: the
/// pointId of points that no navaid fills, and the numbers of an aircraft or airport that the tables do not
/// know.
void loadFlightPlan(Plan& plan, std::int32_t planNumber, const PlanInput& input);

/// Runways and radios of the plan's airports; the alternate's only when there is one.
void loadAirportFacilities(Plan& plan, const PlanInput& input);

} // namespace gatewise
