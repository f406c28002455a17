#pragma once

#include "plan/Geometry.h"
#include "plan/PlanTable.h"
#include "platform/Numbers.h"
#include "schedule/Records.h"

#include <array>
#include <string>
#include <vector>

// The plan as the rows of a list.

namespace gatewise {

struct PlanListRow {
    /// ID (begins with a blank), name, route, heading, distance, altitude.
    std::array<std::string, 6> cells;
    std::array<bool, 6> bold{};
};

/// Departure, points, destination, the total and the alternate: planLast + 5 rows. The alternate's row stands
/// there with or without one; `AlternateIndex` is 0 then.
std::vector<PlanListRow> planListRows(const Plan& plan, const Tables& tables, int AlternateIndex,
                                      const MagneticTable& magnetic, const NumberLocale& locale);

} // namespace gatewise
