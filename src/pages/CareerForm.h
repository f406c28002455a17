#pragma once

#include "pages/Screens.h"

namespace gatewise {

/// "career": what the pilot has flown, from the log book.
void showCareer(Program& p);

/// The table as text for other programs.
void copyCareer(Program& p);
/// The table on paper, the map and the bars on a sheet behind it.
Waited printCareer(Program& p);

void bindCareerForm(Program& p);

} // namespace gatewise
