#pragma once

#include "pages/Screens.h"

namespace gatewise {

/// Finds the simulator, shows its folder, says so when it is not where it should be.
Waited LocateSimulator(Program& p);

/// DirForm's select button: the picked folder becomes the simulator's.
Waited takeSimulatorFolder(Program& p);

void bindDirForm(Program& p);

} // namespace gatewise
