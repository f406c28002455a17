#include "work/Clocks.h"

#include "platform/Numbers.h"

#include <cstdlib>

namespace gatewise {

namespace {

struct ClockStep {
    const char* type;
    std::int16_t BoardClock::*offset;
    int step;
};

constexpr ClockStep kSteps[] = {
    {"hr_up", &BoardClock::HourOffset, 1},
    {"hr_dn", &BoardClock::HourOffset, -1},
    {"min_up", &BoardClock::MinuteOffset, 1},
    {"min_dn", &BoardClock::MinuteOffset, -1},
};

constexpr std::int16_t kRegions = 6;

} // namespace

void takeTimeZone(BoardClock& clock, int bias) {
    clock.Bias = bias;
    clock.ClockRegion = static_cast<std::int16_t>(clockRegionOf(bias));
}

void stepBoardClock(BoardClock& clock, std::string_view type) {
    for (const auto& row : kSteps) {
        if (row.type == type) clock.*row.offset = static_cast<std::int16_t>(clock.*row.offset + row.step);
    }
}

void unshiftClock(BoardClock& clock) {
    clock.HourOffset = clock.MinuteOffset = 0;
}

std::string clockShift(const BoardClock& clock) {
    const int minutes = clock.HourOffset * 60 + clock.MinuteOffset;
    if (minutes == 0) return {};
    const int size = std::abs(minutes);
    return (minutes < 0 ? "-" : "+") + std::to_string(size / 60) + ":" + formatInteger("00", size % 60);
}

void nextClockRegion(BoardClock& clock) {
    clock.ClockRegion =
        clock.ClockRegion >= kRegions ? std::int16_t{1} : static_cast<std::int16_t>(clock.ClockRegion + 1);
}

bool clockMoved(const BoardClock& clock) {
    return clock.HourOffset != clock.LastHourOffset || clock.MinuteOffset != clock.LastMinuteOffset;
}

void rememberOffsets(BoardClock& clock) {
    clock.LastHourOffset = clock.HourOffset;
    clock.LastMinuteOffset = clock.MinuteOffset;
}

} // namespace gatewise
