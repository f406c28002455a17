#pragma once

#include "pages/Screens.h"

#include <string>

namespace gatewise {

/// A plain message box with one button.
Waited ShowMsgBox(Program& p, std::string text);

void bindMsgBox(Program& p);

} // namespace gatewise
