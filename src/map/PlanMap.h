#pragma once

#include "plan/PlanTable.h"
#include "platform/MapScene.h"

namespace gatewise::map {

/// The plan on the map: its legs with their airways, the points with what is known of them, the way to the
/// alternate, the runways of its airports. The id of a place is its index in the plan. Empty for a plan
/// without length.
MapScene planScene(const Plan& plan, std::shared_ptr<const Land> land);

} // namespace gatewise::map
