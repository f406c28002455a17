#pragma once

#include "pages/Program.h"

namespace gatewise {

/// Page entry: the tab clicks.
void ShowMain(Program& p);
void ShowLog(Program& p);
void ShowBoard(Program& p);

/// Ambience and board at start-up.
void StartBoard(Program& p);

/// The options screen's continue: saves, then the board with its new order.
void takeBoardOptions(Program& p);

void bindMainTabs(Program& p);

} // namespace gatewise
