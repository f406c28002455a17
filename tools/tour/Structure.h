#pragma once

#include "window/Desk.h"

#include <string>
#include <vector>

namespace gatewise::stage {

/// What does not stand where it should on the desk of now, in words: a window that reaches over the screen or
/// has not the size of its screen, a control that reaches over its window, one of which a part is hidden by
/// what is around it.
std::vector<std::string> misplaced(const Forms& forms, const window::Desk& desk);

} // namespace gatewise::stage
