#pragma once

#include "pages/Screens.h"

namespace gatewise {

/// "fmc": the ticked products, then the message that they are exported.
Waited exportToFmc(Program& p);

/// Shows the settings of this screen's boxes.
void showFmcBoxes(Program& p);

/// Hands the flight to ProFlight 2000 and waits until it is done.
Waited SendToProFlight(Program& p);

void bindExportForm(Program& p);

} // namespace gatewise
