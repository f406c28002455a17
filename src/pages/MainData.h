#pragma once

#include "pages/Program.h"

#include <functional>

namespace gatewise {

/// Fills routeCombo with the folders below \Data.
void DiscoverDataSets(Program& p);

/// Loads airports, airlines and aircraft of the data set; `before` is told of each table's turn.
void LoadTables(Program& p, const std::function<void(const char* message)>& before = {});

void bindMainData(Program& p);

} // namespace gatewise
