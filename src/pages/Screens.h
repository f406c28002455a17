#pragma once

#include "pages/Program.h"

namespace gatewise {

/// Loads a screen that was not loaded yet: runs its `load` once.
void loadScreen(Screen& screen);

/// Shows without blocking: loads when needed, brings to the front, activates.
void showScreen(Program& p, Screen& screen);

/// Shows modally and returns when the screen has been hidden, or at once when the program is ending.
void showModal(Program& p, Screen& screen);

void hideScreen(Program& p, Screen& screen);

} // namespace gatewise
