#pragma once

#include "pages/Program.h"

#include <cstdint>

namespace gatewise {

/// How a wait came to its end.
///
/// A modal screen, a message and a pause run a loop of events inside the event that they stand in: timers
/// tick, other screens come and go, and the program may end before the wait does. Whoever has waited must
/// look what became of it, and what still belongs to a running program is done after Answered alone. A
/// function that ends with a wait returns how it ended; the handler of an event is the last that gets it.
/// All waits of the pages say so, and this is the one place that says why.
enum class [[nodiscard]] Waited{Answered, Ended};

/// What a wait has to say that has just returned.
Waited waited(const Program& p);

/// Loads a screen that was not loaded yet: runs its `load` once.
void loadScreen(Screen& screen);

/// Shows without blocking: loads when needed, brings to the front, activates.
void showScreen(Program& p, Screen& screen);

/// Shows modally and returns when the screen has been hidden, or at once when the program is ending.
Waited showModal(Program& p, Screen& screen);

void hideScreen(Program& p, Screen& screen);

/// Lets events and timers run for so many milliseconds.
Waited pause(Program& p, std::int64_t milliseconds);

} // namespace gatewise
