#pragma once

#include "pages/Program.h"

namespace gatewise {

/// True when the desktop has 96 dots per inch; leaves its value in ScreenDpi.
bool IsNormalFontSize(const Desktop& desktop, LocaleSigns& signs);

/// First act of every screen's load: scales it where the desktop's fonts are not of the normal size.
void ApplySmallFontFix(Program& p, Screen& screen);

/// Puts a screen over the middle of the main screen's content area.
void CenterOnMain(Program& p, Screen& screen);

/// What every screen's load begins with: the font fix, then its place, then the widths of its tables'
/// columns.
void placeScreen(Program& p, Screen& screen);

} // namespace gatewise
