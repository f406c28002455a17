#pragma once

#include "pages/Program.h"

namespace gatewise {

/// Shows the settings in the controls of this screen.
void showSettings(Program& p);

/// What the home airport is called.
void showHome(Program& p);

void bindSettingsForm(Program& p);

} // namespace gatewise
