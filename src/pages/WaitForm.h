#pragma once

#include "pages/Program.h"

#include <string>

namespace gatewise {

/// Shows n of five lit dots on the standby screen and paints it; n from 0 to 5.
void SetWaitDots(Program& p, int n);

/// The standby screen with its text, shown without blocking and painted; `dots` below 0 leaves them.
void showWait(Program& p, std::string text, int dots);

/// The same with the text that stands.
void showWait(Program& p, int dots);
void hideWait(Program& p);

void bindWaitForm(Program& p);

} // namespace gatewise
