#pragma once

#include "pages/Screens.h"

namespace gatewise {

/// "send_programs": writes the plan for every ticked program and says in one message what became of it.
Waited exportToPrograms(Program& p);

/// "browse": asks for the folder of the button's line.
Waited browseProgramFolder(Program& p, SkinnedButton& button);

/// "close_programs": keeps the choices.
void closePrograms(Program& p);

/// After a flight was selected: the ticked programs get its plan, where that is asked for. Says nothing but
/// what failed.
void exportOnDispatch(Program& p);

void bindProgramsForm(Program& p);

} // namespace gatewise
