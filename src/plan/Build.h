#pragma once

#include "plan/PlanTable.h"

#include <string>

// The steps of a plan's build that other work has use for by themselves.

namespace gatewise {

/// Measures all legs: pointLegDistance, pointHeading, pointTotalDistance and totalDistance. A leg that has no
/// length (a position that is no number) keeps what it had.
void measureLegs(Plan& plan);

/// "hh:mm" of whole minutes.
std::string clockText(std::int32_t minutes);

/// The filed route in one line, at most 1,000 characters.
std::string routeStringOf(const Plan& plan);

} // namespace gatewise
