#pragma once

#include "pages/Program.h"

namespace gatewise {

/// The land below all maps, read when the first of them is shown; empty land where the file is missing.
std::shared_ptr<const map::Land> shownLand(const Program& p);

/// The scene of a map as a drawing with all of it in sight, without the land; empty for a scene without
/// places.
Drawing wholeScene(const MapChart& chart);

/// A scene on half a sheet of paper, all of it with its land; empty for a scene without places.
Drawing paperMap(const MapScene& scene);

/// A new scene for a map that is nothing but it: its drawing too, nothing chosen.
void setScene(MapChart& chart, MapScene scene);

} // namespace gatewise
