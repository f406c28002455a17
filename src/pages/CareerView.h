#pragma once

#include "career/Career.h"
#include "pages/Program.h"

namespace gatewise {

/// What was flown by the filters that are set on the screen.
Career shownCareer(const Program& p);

/// Table, bars and map by the filters.
void fillCareer(Program& p);

/// The same after the log book has changed: the filters offer what it has now and go back to all.
void refreshCareer(Program& p);

/// An airport or a route of the map stands out and says what it is below; -1: none.
void chooseOnCareerMap(Program& p, int id);

} // namespace gatewise
