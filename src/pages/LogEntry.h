#pragma once

#include "pages/Program.h"

namespace gatewise {

/// The entry LogSelected; nullptr when no entry is selected.
LogRecord* selectedEntry(Program& p);

/// Every label of the entry screen from its entry.
void refreshEntry(Program& p);

void bindLogEntry(Program& p);

} // namespace gatewise
