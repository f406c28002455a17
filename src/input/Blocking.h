#pragma once

#include "forms/Forms.h"

namespace gatewise::user {

/// The modal screen that keeps input from `screen`, null when none does: everything behind the innermost one
/// waits, what came up over it does not. A screen that is not up is behind it.
[[nodiscard]] Screen* blockedBy(const Forms& forms, const Screen& screen);

/// The modal screen that would block `screen` were it behind: the innermost one but itself, null when there
/// is none.
[[nodiscard]] Screen* modalBelow(const Forms& forms, const Screen& screen);

} // namespace gatewise::user
