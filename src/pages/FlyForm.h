#pragma once

#include "pages/Screens.h"

namespace gatewise {

/// "fly": the plan prepared, the fly options up.
void showFlyForm(Program& p);

/// "continue_fly": sends the flight to the simulator and says so.
Waited sendFlight(Program& p);

/// Starts the simulator or brings it to the front.
void FSRunning(Program& p);

/// Shows the setting of this screen's box.
void showFlyBox(Program& p);

void bindFlyForm(Program& p);

} // namespace gatewise
