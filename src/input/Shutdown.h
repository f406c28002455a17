#pragma once

#include "pages/Program.h"

namespace gatewise {

/// The one way in which the program ends: frees the lists, ends the sound, writes GT.cfg, unloads the
/// screens, and asks the run loop to end.
void Shutdown(Program& p);

} // namespace gatewise
