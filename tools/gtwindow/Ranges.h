#pragma once

#include "gtwindow/Keyboard.h"
#include "gtwindow/Pointer.h"

namespace gatewise::gtwindow {

/// Moves a slider with the mouse and the arrow keys, up-down arrows by clicks on them, to a value. What lies
/// between their steps cannot be reached, and then nothing is done.
void slideTo(Pointer& pointer, Keyboard& keyboard, RangeControl& range, int value);

} // namespace gatewise::gtwindow
