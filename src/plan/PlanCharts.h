#pragma once

#include "plan/PlanTable.h"
#include "platform/Drawing.h"

// Pictures of the live plan, drawn from its table alone. They show; they never change the plan.

namespace gatewise {

/// Altitude over distance from departure: the flown profile with its tops and steps. Empty for a plan without
/// length.
Drawing profileDrawing(const Plan& plan);

/// A point in words, as far as it has them: "BDR BRIDGEPORT, 108.80, 17000 ft, 0:13". The airports at both
/// ends are told with their elevation.
std::string pointWords(const Plan& plan, int i);

/// What stands upon the profile besides: the levels that are held, the time above, every point as a mark with
/// its index as id and its words. Empty where the profile is.
Drawing profileNotes(const Plan& plan);

/// The route on a map around its middle, distances from there true in every direction, north up: legs as
/// great circles, fixes, tops and steps over a grid of degrees. Empty for a plan without length.
Drawing mapDrawing(const Plan& plan);

} // namespace gatewise
