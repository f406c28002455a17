#pragma once

#include "pages/Program.h"

namespace gatewise {

/// The start-up procedure: configuration, simulator, data sets, sound, clock region, locale, splash, tables,
/// log book, screens, flights of the home airport, first board, main screen. Returns when the main screen is
/// up, or when the program ended in the middle. Screens must be bound (bindScreens).
void startUp(Program& p);

} // namespace gatewise
