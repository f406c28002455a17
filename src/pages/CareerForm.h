#pragma once

#include "pages/Screens.h"

namespace gatewise {

/// "career": what the pilot has flown, from the log book.
Waited showCareer(Program& p);

void bindCareerForm(Program& p);

} // namespace gatewise
