#pragma once

#include "state/Program.h"

namespace gatewise {

/// Page entry: the tab clicks.
void ShowMain(Program& p);
void ShowLog(Program& p);
void ShowBoard(Program& p);

/// Help text 0 or 1 of the left column.
void ShowHelpText(Program& p, int page);

/// Ambience and board at start-up.
void StartBoard(Program& p);

/// The options screen's continue: saves, then the board with its new order.
void takeBoardOptions(Program& p);

/// Puts one of the three pages into the content area and hides the others.
void showPage(Program& p, Container& page);
/// The boarding pass and its title; the help text stays.
void showMainPage(Program& p);

/// The timers that only run while the board is up, and the three that announce.
void stopBoardTimers(Program& p);

void bindMainForm(Program& p);
void bindMainPages(Program& p);

} // namespace gatewise
