#pragma once

#include "pages/Program.h"

namespace gatewise {

/// Recompute the board clock's labels and the world clocks; hours go first, minutes can change the hours.
void UpdateClockHours(Program& p);
void UpdateClockMinutes(Program& p);

void bindMainClocks(Program& p);

} // namespace gatewise
