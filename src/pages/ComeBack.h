#pragma once

#include "pages/Screens.h"

namespace gatewise {

/// Where the pilot leaves: the window's place, the page, the departure airport, into the settings. Nothing is
/// kept for a pilot who does not want it.
void rememberPlace(Program& p);

/// The airport and the window's place of the last run, before the main screen is up; the page once it is.
/// Without the pilot's wish they do nothing.
Waited comeBackToAirport(Program& p);
Waited comeBackToPage(Program& p);

} // namespace gatewise
