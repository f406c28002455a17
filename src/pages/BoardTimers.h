#pragma once

#include "pages/Program.h"

namespace gatewise {

/// The tick of update_TIMER: visible rows, fresh header, rebuilt board.
void updateTick(Program& p);

/// Starts the engine as every sound begins: engine, stereo, speaker configuration.
void startSoundEngine(Program& p);

void bindBoardTimers(Program& p);

} // namespace gatewise
