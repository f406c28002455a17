#pragma once

#include "plan/Level.h"
#include "plan/PlanTable.h"

#include <optional>

namespace gatewise {

/// Moves the points of the table up and drops top of descent and top of climb into the gaps. Gives the index
/// of the last point that the flight visits; planLast itself stays. Nothing when the table has no room or a
/// position does not exist: the points then stand where they had come to.
std::optional<int> insertTopPoints(Plan& plan, const LevelEstimate& estimate);

/// Copies a point over another, all but pointLegDistance: legs are measured afresh after every move.
void movePoint(PlanPoint& to, const PlanPoint& from);

/// The position `miles` from a point along a course; false when it does not exist.
bool placeAt(PlanPoint& point, const PlanPoint& from, float course, std::int32_t miles);

} // namespace gatewise
