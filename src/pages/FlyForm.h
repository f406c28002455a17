#pragma once

#include "pages/Program.h"

namespace gatewise {

/// "continue_fly": sends the flight to the simulator and says so.
void sendFlight(Program& p);

/// Starts the simulator or brings it to the front.
void FSRunning(Program& p);

void bindFlyForm(Program& p);

} // namespace gatewise
