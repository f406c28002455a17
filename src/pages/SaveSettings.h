#pragma once

#include "pages/Program.h"

namespace gatewise {

/// Writes GT.cfg. Every write passes here, and here an error is said once.
void saveSettings(Program& p);

} // namespace gatewise
