#pragma once

#include "pages/Program.h"

namespace gatewise {

/// DirForm's select button: the picked folder becomes the simulator's.
void takeSimulatorFolder(Program& p);

void bindDirForm(Program& p);

} // namespace gatewise
