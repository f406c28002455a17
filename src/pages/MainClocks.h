#pragma once

#include "pages/Program.h"

#include <string_view>

namespace gatewise {

/// Recompute the board clock's labels and the world clocks; hours go first, minutes can change the hours.
void UpdateClockHours(Program& p);
void UpdateClockMinutes(Program& p);

/// Takes the zone's bias and the clock region that follows from it.
void takeTimeZone(Program& p);

/// "hr_up", "hr_dn", "min_up", "min_dn"
void stepBoardClock(Program& p, std::string_view type);
void nextClockRegion(Program& p);

/// (60 - seconds of the current time) x 1000: the next full minute.
int millisecondsToMinute(const Program& p);

void bindMainClocks(Program& p);

} // namespace gatewise
