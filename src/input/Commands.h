#pragma once

#include "pages/Screens.h"

namespace gatewise {

/// What a click does: compares the button's type with the table of its class, in order; the first match acts.
/// A type that matches no row does nothing. State and click sound are the caller's.
Waited runCommand(Program& p, SkinnedButton& button);

} // namespace gatewise
