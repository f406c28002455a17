#pragma once

#include "pages/Program.h"

namespace gatewise {

/// Ties presses, moves, repeats and clicks of every skinned button of every screen.
void bindSkinnedButtons(Program& p);

} // namespace gatewise
