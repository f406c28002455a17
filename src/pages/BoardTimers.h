#pragma once

#include "pages/Program.h"

namespace gatewise {

/// The tick of update_TIMER: visible rows, fresh header, rebuilt board.
void updateTick(Program& p);

void bindBoardTimers(Program& p);

} // namespace gatewise
