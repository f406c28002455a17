#pragma once

#include "forms/Control.h"

namespace gatewise::drive {

/// What the Escape key does in a screen: it clicks the key that closes it, where it has one that can be used
/// now.
void pressEscape(Screen& screen);

/// What the window manager does to a screen: it clicks that key, where Escape is not heeded too.
void closeWindow(Screen& screen);

} // namespace gatewise::drive
