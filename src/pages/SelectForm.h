#pragma once

#include "pages/Program.h"

namespace gatewise {

/// The departure search of the enter key and button: standby screen, search, picker.
void searchDeparture(Program& p);

/// The same for the home airport, from the settings.
void searchHome(Program& p);

/// The picker's answer: its button or a double click in its list.
void acceptPick(Program& p);

void bindSelectForm(Program& p);

} // namespace gatewise
