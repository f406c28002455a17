#pragma once

#include "pages/Program.h"

namespace gatewise {

/// Retrieves the plan of CurrentFlight.
void retrievePlan(Program& p);

/// The list of an open plan screen anew, once flight and alternate are known.
void refreshShownPlan(Program& p);

/// The two steps before a plan leaves: the airport blocks taken again, then their runways and radios.
void preparePlan(Program& p);

/// "viewpln"
void showPlan(Program& p);

/// "recalc_fltplan" and "remove_point" of the plan screen.
void recalculateShownPlan(Program& p);
void removeShownPoint(Program& p);

/// Prints the dispatch release.
void printFlightPlan(Program& p);

void bindViewPlan(Program& p);

} // namespace gatewise
