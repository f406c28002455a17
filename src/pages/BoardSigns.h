#pragma once

#include "pages/Program.h"
#include "work/BoardWork.h"

namespace gatewise {

/// What the board says besides its rows: the page in view, and in the place of no rows when the next flight
/// goes.
void showBoardSigns(Program& p, const BoardChoice& choice);

/// The key of an empty board shows any day.
void bindBoardSigns(Program& p);

} // namespace gatewise
