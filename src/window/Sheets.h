#pragma once

#include "window/Skin.h"

#include <QPalette>
#include <QString>

// Style sheets and colours for what the toolkit draws itself: bars, menus, its own dialogs. Each is made for
// the zoom and the contrast of now.

namespace gatewise::window {

QString scrollBarSheet(const Skin& skin);
QString menuSheet(const Skin& skin);
/// Of a dialog with all that stands in it, and of what it asks in turn.
QString dialogSheet(const Skin& skin);
QPalette dialogPalette(const Skin& skin, const QPalette& base);

} // namespace gatewise::window
