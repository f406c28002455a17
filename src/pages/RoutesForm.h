#pragma once

#include "pages/Screens.h"

namespace gatewise {

/// "routes": the destinations of the departure airport, by the day and the airline that the board has.
/// Without any flight that is told instead.
Waited showRoutes(Program& p);

void bindRoutesForm(Program& p);

} // namespace gatewise
