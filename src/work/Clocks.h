#pragma once

#include "board/Clock.h"

#include <string>
#include <string_view>

namespace gatewise {

/// Takes the zone's bias (minutes with UTC = local time + bias) and the clock region that follows from it.
void takeTimeZone(BoardClock& clock, int bias);

/// "hr_up", "hr_dn", "min_up", "min_dn"
void stepBoardClock(BoardClock& clock, std::string_view type);

/// Takes the pilot's shift away: the clock shows the time of the computer.
void unshiftClock(BoardClock& clock);

/// "+1:30" of a clock that the pilot has shifted, empty of one that shows the time of the computer.
std::string clockShift(const BoardClock& clock);

void nextClockRegion(BoardClock& clock);

/// Whether the pilot moved the clock since the board was built last.
bool clockMoved(const BoardClock& clock);

/// The board is built for the clock as it stands.
void rememberOffsets(BoardClock& clock);

} // namespace gatewise
