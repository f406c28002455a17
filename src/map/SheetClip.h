#pragma once

#include "platform/Drawing.h"

namespace gatewise::map {

/// The same drawing with its lines cut to the unit square: a line that leaves it and comes back becomes two,
/// one outside of it none. Areas, marks and texts stay as they are.
Drawing withinSheet(Drawing drawing);

} // namespace gatewise::map
