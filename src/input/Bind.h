#pragma once

#include "pages/Program.h"

namespace gatewise {

/// Ties every screen's events to what the program does. Called once, before start-up.
void bindScreens(Program& p);

} // namespace gatewise
