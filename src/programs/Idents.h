#pragma once

#include "programs/RoutePoint.h"

#include <vector>

namespace gatewise::programs {

/// Gives each place an identifier of its own. Points of one kind that lie at one place keep theirs; where two
/// places have the same, the later one becomes a point of the user's with a number behind, for a program
/// would look it up and find the other. A point of the user's has no identifier that any other place has.
void nameApart(std::vector<RoutePoint>& points);

} // namespace gatewise::programs
