#pragma once

#include "window/View.h"

#include <vector>

namespace gatewise::window {

/// Tells every view the caption that stands beside or above it, and the toolkit what each is called.
void nameFields(const std::vector<View*>& views, const ScreenLayout& layout);

/// Lets the views of a table's lines speak the whole line. `views` must outlive them.
void nameRows(const std::vector<View*>& views);

} // namespace gatewise::window
