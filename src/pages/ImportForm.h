#pragma once

#include "pages/Screens.h"

namespace gatewise {

Waited showImport(Program& p);

/// Closes the screen, or stops what runs behind it.
void closeImport(Program& p);

void bindImportForm(Program& p);

} // namespace gatewise
