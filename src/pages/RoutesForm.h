#pragma once

#include "pages/Screens.h"

namespace gatewise {

/// "routes": the destinations of the departure airport, by the day and the airline that the board has.
void showRoutes(Program& p);

void bindRoutesForm(Program& p);

} // namespace gatewise
