#pragma once

#include "pages/Program.h"

namespace gatewise {

/// Fills routeCombo with the folders below \Data.
void DiscoverDataSets(Program& p);

void bindMainData(Program& p);

} // namespace gatewise
