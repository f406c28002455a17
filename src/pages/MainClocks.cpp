#include "pages/MainClocks.h"

#include "board/Clock.h"

namespace gatewise {

namespace {

BoardClock boardClock(Program& p) {
    auto& g = p.g;
    return {g.Bias,         g.HourOffset, g.MinuteOffset, g.ClockHours,
            g.ClockMinutes, g.ZoneHours,  g.ZoneMinutes,  g.ZoneShade};
}

/// Times and colours of the four world clocks.
void paintZones(Program& p) {
    auto& f = p.forms.MainForm;
    int k = 0;
    for (const auto& zone : zoneClocks(p.g.ClockRegion)) {
        f.clock_time(k).text = zoneTimeText(boardClock(p), zone.element);
        f.clock_time(k).color = {0, static_cast<std::uint8_t>(p.g.ZoneShade[zone.element]), 0};
        ++k;
    }
}

void clockTick(Program& p) {
    UpdateClockHours(p);
    UpdateClockMinutes(p);
    auto& colon = p.forms.MainForm.gt_sepLABEL;
    colon.visible = !colon.visible;
}

struct ClockStep {
    const char* type;
    std::int16_t Globals::*offset;
    int step;
};

constexpr ClockStep kSteps[] = {
    {"hr_up", &Globals::HourOffset, 1},
    {"hr_dn", &Globals::HourOffset, -1},
    {"min_up", &Globals::MinuteOffset, 1},
    {"min_dn", &Globals::MinuteOffset, -1},
};

constexpr std::int16_t kRegions = 6;

} // namespace

void UpdateClockHours(Program& p) {
    const int hours = UpdateClockHours(boardClock(p), p.machine.clock.now().hour);
    p.forms.MainForm.gt_hoursLABEL.text = formatInteger("00", hours);
    paintZones(p);
}

void UpdateClockMinutes(Program& p) {
    const DateTime now = p.machine.clock.now();
    auto& f = p.forms.MainForm;
    const ClockReading reading = UpdateClockMinutes(boardClock(p), now.hour, now.minute);
    if (reading.hours) f.gt_hoursLABEL.text = formatInteger("00", *reading.hours);
    f.gt_minutesLABEL.text = formatInteger("00", reading.minutes);
    int k = 0;
    for (const auto& zone : zoneClocks(p.g.ClockRegion)) f.cityTime(k++).text = std::string(zone.city);
    paintZones(p);
}

void takeTimeZone(Program& p) {
    p.g.Bias = p.machine.clock.bias();
    p.g.ClockRegion = static_cast<std::int16_t>(clockRegionOf(p.g.Bias));
}

void stepBoardClock(Program& p, std::string_view type) {
    for (const auto& row : kSteps) {
        if (row.type == type) p.g.*row.offset = static_cast<std::int16_t>(p.g.*row.offset + row.step);
    }
}

void nextClockRegion(Program& p) {
    p.g.ClockRegion =
        p.g.ClockRegion >= kRegions ? std::int16_t{1} : static_cast<std::int16_t>(p.g.ClockRegion + 1);
}

int millisecondsToMinute(const Program& p) {
    return (60 - p.machine.clock.now().second) * 1000;
}

void bindMainClocks(Program& p) {
    p.forms.MainForm.GTclock_Timer.on(Event::Tick, [&p] { clockTick(p); });
}

} // namespace gatewise
