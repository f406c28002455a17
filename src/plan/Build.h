#pragma once

#include "plan/PlanInput.h"
#include "plan/PlanTable.h"

#include <string>

// From the points of a plan to all that is computed of them, and the steps of it that other work has use for
// by themselves.

namespace gatewise {

/// Airports, legs, profile, step points, times and route string of the points that the table holds.
void buildPlan(Plan& plan, const PlanInput& input);

/// The airport blocks from the airport table; the alternate's only when there is one. Runways and radios
/// stay.
void takeAirports(Plan& plan, const PlanInput& input);

/// Measures all legs: pointLegDistance, pointHeading, pointTotalDistance and totalDistance. A leg that has no
/// length (a position that is no number) keeps what it had.
void measureLegs(Plan& plan);

/// "hh:mm" of whole minutes.
std::string clockText(std::int32_t minutes);

/// The filed route in one line, at most 1,000 characters.
std::string routeStringOf(const Plan& plan);

} // namespace gatewise
