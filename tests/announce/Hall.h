#pragma once

#include "dispatch/Terminal.h"
#include "sound/SoundFixture.h"

#include <string>
#include <string_view>
#include <vector>

namespace gatewise::test {

/// The screens' timers in the queue of the simulated machine.
struct QueuedTimers : TimerHost {
    explicit QueuedTimers(simulated::SimulatedLoop& loop) : loop(loop) {}
    void arm(Timer& timer) override { loop.arm(&timer, timer.interval()); }
    void disarm(Timer& timer) override { loop.disarm(&timer); }
    simulated::SimulatedLoop& loop;
};

/// The terminal with its board up and all recordings in place, on a schedule that each test writes. The
/// simulated machine runs the program's timers.
class Hall : public testing::Test {
protected:
    Hall();
    ~Hall() override;

    /// A departure from, or an arrival at, the home airport.
    void departure(int hhmm, int number);
    void arrival(int hhmm, int number);
    /// Starts the program and brings the board up at this time, with no operation heard so far.
    void open(int hhmm, std::string_view settings = {});
    void turnToArrivals() { user::click(t.p.forms.MainForm.switchButton(1)); }
    /// Moves the clock and lets the board see it.
    void setTime(int hhmm);
    /// Draws of the next tick: no echo, the female voice, 8000 Hz, the scan from `start` of 0 to 1.
    void plainDraws(double start = 0) { t.machine.random.setDraws({0, 0, 0, start, 0}); }
    void tick(Timer& timer) { user::tick(timer); }
    /// One undisturbed tick of a play timer, 1 to 3: what was announced as "channel flight", empty for
    /// nothing.
    std::string play(int timer, double start = 0);
    Timer& playTimer(int timer);
    [[nodiscard]] bool heard(std::string_view line) const;

    TempFolder folder;
    Schedule schedule;
    sound_test::Listener sounds;
    Terminal t{folder};
    QueuedTimers timers{t.machine.loop};
    forms::MainForm& board = t.p.forms.MainForm;
};

} // namespace gatewise::test
