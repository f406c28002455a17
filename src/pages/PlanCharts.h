#pragma once

#include "pages/Program.h"

namespace gatewise {

/// The two drawings anew from the plan.
void drawCharts(Program& p);

/// The row picked in the plan's list stands out on both.
void markPoint(Program& p);

/// Profile and map beside the plan's list.
void showCharts(Program& p);

void bindPlanCharts(Program& p);

} // namespace gatewise
