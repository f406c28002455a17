#include "pages/MainClocks.h"

#include "board/Clock.h"
#include "platform/Numbers.h"
#include "work/Clocks.h"

namespace gatewise {

namespace {

/// Times and colours of the four world clocks.
void paintZones(forms::MainForm& f, const BoardClock& clock) {
    int k = 0;
    for (const auto& zone : zoneClocks(clock.ClockRegion)) {
        f.clock_time(k).text = zoneTimeText(clock, zone.element);
        f.clock_time(k).color = {0, static_cast<std::uint8_t>(clock.ZoneShade[zone.element]), 0};
        ++k;
    }
}

/// A clock that the pilot has shifted says by how much, and has a key that sets it back.
void showShift(Program& p) {
    auto& f = p.forms.MainForm;
    f.shift_LABEL.text = clockShift(p.session.clock);
    f.shift_LABEL.visible = f.nowButton.visible = !f.shift_LABEL.text.empty();
}

void setToNow(Program& p) {
    unshiftClock(p.session.clock);
    UpdateClockHours(p);
    UpdateClockMinutes(p);
}

void clockTick(Program& p) {
    UpdateClockHours(p);
    UpdateClockMinutes(p);
    auto& colon = p.forms.MainForm.gt_sepLABEL;
    colon.visible = !colon.visible;
}

} // namespace

void UpdateClockHours(Program& p) {
    auto& f = p.forms.MainForm;
    BoardClock& clock = p.session.clock;
    f.gt_hoursLABEL.text = formatInteger("00", UpdateClockHours(clock, p.machine.clock.now().hour));
    paintZones(f, clock);
}

void UpdateClockMinutes(Program& p) {
    const DateTime now = p.machine.clock.now();
    auto& f = p.forms.MainForm;
    BoardClock& clock = p.session.clock;
    const ClockReading reading = UpdateClockMinutes(clock, now.hour, now.minute);
    if (reading.hours) f.gt_hoursLABEL.text = formatInteger("00", *reading.hours);
    f.gt_minutesLABEL.text = formatInteger("00", reading.minutes);
    showShift(p);
    int k = 0;
    for (const auto& zone : zoneClocks(clock.ClockRegion)) f.cityTime(k++).text = std::string(zone.city);
    paintZones(f, clock);
}

void bindMainClocks(Program& p) {
    p.forms.MainForm.nowButton.on(Event::Click, [&p] { setToNow(p); });
    p.forms.MainForm.GTclock_Timer.on(Event::Tick, [&p] { clockTick(p); });
}

} // namespace gatewise
