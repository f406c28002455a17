#pragma once

#include "plan/PlanTable.h"

#include <cstdint>
#include <vector>

namespace gatewise {

/// Values that connect calls of the navigation geometry.
struct GeometryState {
    float lastCourse = 0;            // degrees, found by the last Distance
    std::int32_t offsetDistance = 0; // nautical miles that the offset functions move
};

/// The plan of the flight on the pass.
struct PlanDesk {
    Plan plan;
    std::vector<Plan> before; // the plan of this flight before each point that was removed, latest last
    GeometryState geometry;
};

} // namespace gatewise
