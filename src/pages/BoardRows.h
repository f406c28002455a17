#pragma once

#include "pages/Program.h"

namespace gatewise {

/// What the rows of the board do: two clicks put the flight onto the pass, the right button tells of it.
void bindBoardRows(Program& p);

} // namespace gatewise
