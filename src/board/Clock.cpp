#include "board/Clock.h"

#include "platform/Numbers.h"
#include "platform/TimeOfDay.h"

#include <cstdlib>

namespace gatewise {

namespace {

constexpr int kWestmostZone = -11; // UTC offset of element 0

constexpr std::array<std::array<ZoneClock, 4>, 6> kRegions = {
    {{{{"London", 11}, {"Rome", 12}, {"Cairo", 13}, {"Moscow", 14}}},
     {{{"Santiago", 7}, {"Brasilia", 8}, {"Mid-Atlantic", 9}, {"Azores", 10}}},
     {{{"San Francisco", 3}, {"Denver", 4}, {"Chicago", 5}, {"New York", 6}}},
     {{{"Auckland", 23}, {"Midway", 0}, {"Honolulu", 1}, {"Anchorage", 2}}},
     {{{"Hong Kong", 19}, {"Tokyo", 20}, {"Sydney", 21}, {"Solomon Is.", 22}}},
     {{{"Abu Dhabi", 15}, {"Islamabad", 16}, {"Colombo", 17}, {"Bangkok", 18}}}}};

/// Where the regions begin on the way east to west; the numbers of the regions east of London run against
/// that order.
struct BiasBucket {
    int upTo; // minutes, included
    int region;
};
constexpr std::array<BiasBucket, 6> kBuckets = {
    {{-661, 4}, {-421, 5}, {-181, 6}, {59, 1}, {240, 2}, {480, 3}}};
constexpr int kBeyondBuckets = 4;

std::int16_t stored(int value) {
    return static_cast<std::int16_t>(value);
}

} // namespace

int UpdateClockHours(BoardClock& clock, int systemHour) {
    int h = systemHour + clock.HourOffset;
    while (h < 0) h += kHoursOfDay;
    while (h >= kHoursOfDay) h -= kHoursOfDay;
    clock.ClockHours = stored(h + clock.Bias / kMinutesOfHour);
    UpdateZones(clock);
    return h;
}

ClockReading UpdateClockMinutes(BoardClock& clock, int systemHour, int systemMinute) {
    ClockReading reading;
    int m = systemMinute + clock.MinuteOffset;
    while (m < 0 || m >= kMinutesOfHour) {
        const int carry = m < 0 ? -1 : 1;
        m -= carry * kMinutesOfHour;
        clock.MinuteOffset = stored(clock.MinuteOffset - carry * kMinutesOfHour);
        clock.HourOffset = stored(clock.HourOffset + carry);
        reading.hours = UpdateClockHours(clock, systemHour);
    }
    clock.ClockMinutes = stored(clock.Bias + m - clock.Bias / kMinutesOfHour * kMinutesOfHour);
    reading.minutes = m;
    UpdateZones(clock);
    return reading;
}

void UpdateZones(BoardClock& clock) {
    if (clock.ClockHours < 0)
        clock.ClockHours = stored(clock.ClockHours + kHoursOfDay);
    else if (clock.ClockHours >= kHoursOfDay)
        clock.ClockHours = stored(clock.ClockHours - kHoursOfDay);
    for (std::size_t e = 0; e < kZones; ++e) {
        int hour = clock.ClockHours + kWestmostZone + static_cast<int>(e);
        if (hour < 0) hour += kHoursOfDay;
        if (hour >= kHoursOfDay) hour -= kHoursOfDay;
        clock.ZoneHours[e] = stored(hour);
        clock.ZoneMinutes[e] = clock.ClockMinutes;
        clock.ZoneShade[e] = stored(255 - std::abs(hour - 12) * 12);
    }
}

std::span<const ZoneClock> zoneClocks(int ClockRegion) {
    if (ClockRegion < 1 || ClockRegion > static_cast<int>(kRegions.size())) return {};
    return kRegions[static_cast<std::size_t>(ClockRegion - 1)];
}

std::string zoneTimeText(const BoardClock& clock, std::size_t element) {
    return formatInteger("00", clock.ZoneHours[element]) + ":" +
           formatInteger("00", clock.ZoneMinutes[element]);
}

int clockRegionOf(int bias) {
    for (const auto& bucket : kBuckets) {
        if (bias <= bucket.upTo) return bucket.region;
    }
    return kBeyondBuckets;
}

std::optional<int> minutesFromNow(std::string_view hoursText, std::string_view minutesText, int hhmm) {
    const auto now = timeOfDay(hoursText, minutesText);
    const auto time = timeOfDay(hhmm);
    if (!now || !time) return std::nullopt;
    return *time - *now;
}

} // namespace gatewise
