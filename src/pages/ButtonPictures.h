#pragma once

#include "forms/Control.h"

#include <string>
#include <string_view>

// The picture rules of the button classes, as tables.

namespace gatewise {

/// Stem of a FormButton's pictures: "close", "plus"; nullptr for a type without pictures.
const char* formStem(std::string_view type);

/// Whether the release of a FormButton of this type brings its mouse picture back.
bool releasesToMouse(std::string_view type);

/// Interval in which a held FormButton repeats, in milliseconds.
int repeatInterval(std::string_view type);

/// Picture of a switchButton under the mouse; empty when the type has no hover picture of its own in this
/// state.
std::string switchHover(std::string_view type, int state);

/// Picture of a button of a dialog when the mouse is elsewhere; empty when the type has none.
std::string restingPicture(const SkinnedButton& button);

/// Picture of a midButton under the mouse; empty when the type has none.
const char* midHover(std::string_view type);

} // namespace gatewise
