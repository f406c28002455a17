#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

// The time that the board shows and the clocks of 24 zones beside it. All arithmetic starts from the hour and
// the minute of the system's local time; the offsets are the user's shift of the board clock.

namespace gatewise {

inline constexpr int kZones = 24;

/// The board's clock. The offsets are the pilot's shift of it, as he steps them.
struct BoardClock {
    int Bias = 0;                 // minutes with UTC = local time + bias, taken once at start-up
    std::int16_t ClockRegion = 1; // 1 to 6: which four world clocks are shown
    std::int16_t HourOffset = 0, MinuteOffset = 0;
    std::int16_t LastHourOffset = 0, LastMinuteOffset = 0; // for which the board was built
    std::int16_t ClockHours = 0, ClockMinutes = 0;         // UTC
    std::array<std::int16_t, kZones> ZoneHours{}, ZoneMinutes{}, ZoneShade{};
};

/// Recomputes the hour and the zones. Returns the hour of the big clock, 0 to 23.
int UpdateClockHours(BoardClock& clock, int systemHour);

struct ClockReading {
    int minutes = 0;          // of the big clock, 0 to 59
    std::optional<int> hours; // of the big clock, when folding the minutes moved them
};

/// Folds minutes beyond the hour into the hour offset, then recomputes the minute and the zones. The zones'
/// minutes stay as they come out, below 0 or above 59 under a bias of half hours.
ClockReading UpdateClockMinutes(BoardClock& clock, int systemHour, int systemMinute);

/// Hours, minutes and shades of all zones from ClockHours and ClockMinutes.
void UpdateZones(BoardClock& clock);

/// One of the four world clocks: its name and its element in the zone arrays.
struct ZoneClock {
    std::string_view city;
    std::size_t element;
};

/// The four clocks of a region 1 to 6; none for any other number.
std::span<const ZoneClock> zoneClocks(int ClockRegion);

/// "07:30": what a world clock shows.
std::string zoneTimeText(const BoardClock& clock, std::size_t element);

/// The region in which the clocks start.
int clockRegionOf(int bias);

/// Minutes from the time on the board's clock to a time of day HHMM of the same day, between -1439 and 1439;
/// nothing when one of them is no time of day.
std::optional<int> minutesFromNow(std::string_view hoursText, std::string_view minutesText, int hhmm);

} // namespace gatewise
