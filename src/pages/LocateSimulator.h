#pragma once

#include "pages/Program.h"

namespace gatewise {

/// Finds the simulator's folder: the verified one, or the registry's; says message 11 when it is not there.
void LocateSimulator(Program& p);

} // namespace gatewise
