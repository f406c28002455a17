#pragma once

#include "pages/Screens.h"

namespace gatewise {

/// Page entry: the tab clicks.
void ShowMain(Program& p);
void ShowLog(Program& p);
Waited ShowBoard(Program& p);

/// Ambience and board at start-up.
Waited StartBoard(Program& p);

/// The options screen's continue: saves, then the board with its new order.
Waited takeBoardOptions(Program& p);

void bindMainTabs(Program& p);

} // namespace gatewise
