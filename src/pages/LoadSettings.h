#pragma once

#include "pages/Program.h"

namespace gatewise {

/// Reads GT.cfg into the settings and shows them on the screens that change them.
void loadSettings(Program& p);

} // namespace gatewise
