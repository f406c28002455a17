#pragma once

#include "window/View.h"

#include <vector>

namespace gatewise::window {

/// The control that Escape and the window manager press to close a screen, null when it has none.
Control* closingKey(const Screen& screen, const std::vector<View*>& views);

} // namespace gatewise::window
