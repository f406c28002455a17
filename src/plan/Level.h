#pragma once

#include "plan/PlanTable.h"

namespace gatewise {

/// Miles that climb and descent of the chosen level take.
struct LevelEstimate {
    double climb = 0;
    double descent = 0;
};

/// Sets cruiseAltitude to the highest level below the ceiling whose climb and descent take no more than 80
/// per cent of the route, and peakAltitude to 0. False when there is none.
bool chooseLevel(Plan& plan, LevelEstimate& estimate);

} // namespace gatewise
