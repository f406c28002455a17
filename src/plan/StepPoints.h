#pragma once

#include "plan/PlanTable.h"

#include <cstdint>

// Points at which a long flight levels off on its way up or down. They show in the table; the profile that is
// flown does not follow them. Each operation is false when it could not go on: no room for one more point, a
// target that is never reached, a position that does not exist.

namespace gatewise {

enum class StepDirection { Climb, Descent };

/// All step points that the cruise level asks for.
bool insertStepPoints(Plan& plan);

/// One pass for the first crossings of `target` feet on the way up, and on the way down.
bool stepClimbAt(Plan& plan, std::int32_t target);
bool stepDescentAt(Plan& plan, std::int32_t target);

/// Fills slot i + 1 with the step behind point i. Point i + 2 is the next fix.
bool placeStepPoint(Plan& plan, std::int32_t target, int i, StepDirection direction);

} // namespace gatewise
