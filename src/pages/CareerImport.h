#pragma once

#include "pages/Screens.h"

namespace gatewise {

/// The part of the career's screen that takes other log books over: nothing is looked at, and undone can be
/// what beside the log book is kept for it.
void resetCareerImport(Program& p);

void bindCareerImport(Program& p);

} // namespace gatewise
