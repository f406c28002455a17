#pragma once

#include "plan/PlanTable.h"

// The flown profile: which level, where the climb ends and the descent begins, how high and how late each
// point is passed.

namespace gatewise {

/// Chooses cruiseAltitude, inserts top of climb and top of descent, writes altitudes and minutes of all
/// points. Expects a table without computed points whose legs are measured. False when a stage failed: the
/// table then stands as far as it had come, and what follows has not run. Failures are a route too short for
/// any level, numbers with which the aircraft never reaches one, a table without room for two more points,
/// and a position that does not exist.
bool computeProfile(Plan& plan);

/// Writes pointMinutes alone, by the same flight over the final table. False when it failed on the way;
/// earlier points keep their new minutes.
bool recomputeTimes(Plan& plan);

} // namespace gatewise
