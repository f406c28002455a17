#pragma once

#include "pages/Screens.h"

namespace gatewise {

/// The departure search of the enter key and button: standby screen, search, picker.
Waited searchDeparture(Program& p);

/// The same for the home airport, from the settings.
Waited searchHome(Program& p);

/// The picker in one of its modes, modal.
Waited pick(Program& p, const char* mode);

/// The picker's way for a destination that was picked elsewhere: an index of the airport table.
Waited pickArrival(Program& p, int airport);

/// The picker's answer: its button or a double click in its list.
Waited acceptPick(Program& p);

void bindSelectForm(Program& p);

} // namespace gatewise
