#pragma once

#include "pages/Program.h"

namespace gatewise {

/// Help text 0 or 1 of the left column.
void ShowHelpText(Program& p, int page);

/// Puts one of the three pages into the content area and hides the others.
void showPage(Program& p, Container& page);

/// The boarding pass and its title; the help text stays.
void showMainPage(Program& p);

/// The timers that only run while the board is up, and the three that announce.
void runBoardTimers(forms::MainForm& f, bool on);

} // namespace gatewise
