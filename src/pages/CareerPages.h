#pragma once

#include "pages/Screens.h"

namespace gatewise {

/// What was flown, by the filters that are set: the table as text for other programs.
void copyCareer(Program& p);
/// The table on paper, the map and the bars on a sheet behind it.
Waited printCareer(Program& p);
/// The same in a file that the pilot names: a PNG picture, or PDF.
Waited saveCareerPicture(Program& p);
Waited saveCareerPages(Program& p);

} // namespace gatewise
