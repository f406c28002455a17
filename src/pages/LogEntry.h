#pragma once

#include "pages/Program.h"

namespace gatewise {

/// Every label of the entry screen from its entry.
void refreshEntry(Program& p);

void bindLogEntry(Program& p);

} // namespace gatewise
