#pragma once

#include "plan/GetFlightPlan.h"
#include "plan/PlanTable.h"

#include <cstdint>
#include <string_view>

// The two edits that the pilot may make. Both take the altitude of the arrows as the new upper limit and
// compute the plan again from the fixes that remain.

namespace gatewise {

enum class Removal { Nothing, AirportRefused, ComputedRefused, Done };

inline constexpr std::string_view kAirportRefusal = "You may not remove the Departure or Destination Airport";
inline constexpr std::string_view kComputedRefusal = "Step Climb and Descent Points and the Top of Climb and "
                                                     "Top of Descent points are calculated according to the "
                                                     "cruise altitude and cannot be removed.";

/// A new upper limit of `altitude` feet.
void recalculatePlan(Plan& plan, const PlanInput& input, std::int32_t altitude);

/// Takes the point of list row `row`, counted from 1, out of the route. Rows behind the destination do
/// nothing; a refusal has already taken the altitude as peakAltitude and ceilingAltitude.
Removal removePlanPoint(Plan& plan, const PlanInput& input, int row, std::int32_t altitude);

/// Takes top and step points out of the table. The fields that a build computes stay at their slots.
void removeComputedPoints(Plan& plan);

} // namespace gatewise
