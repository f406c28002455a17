#pragma once

#include "pages/Screens.h"

namespace gatewise {

/// The plan's airports anew, before it leaves for a file, a program or the simulator.
void preparePlan(Program& p);

/// "viewpln"
void showPlan(Program& p);

/// The list of an open plan screen anew, once flight and alternate are known.
void refreshShownPlan(Program& p);

/// "recalc_fltplan" and "remove_point" of the plan screen.
void recalculateShownPlan(Program& p);
Waited removeShownPoint(Program& p);

/// Puts back the point that was removed last.
void undoRemoval(Program& p);

/// Prints the dispatch release.
Waited printFlightPlan(Program& p);

void bindViewPlan(Program& p);

} // namespace gatewise
