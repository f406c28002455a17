#pragma once

#include "forms/Control.h"
#include "platform/simulated/SimulatedLoop.h"

namespace gatewise::drive {

/// Timers of the screens in the queue of a simulated machine.
class SimulatedTimers : public TimerHost {
public:
    explicit SimulatedTimers(simulated::SimulatedLoop& loop) : loop_(loop) {}
    void arm(Timer& timer) override { loop_.arm(&timer, timer.interval()); }
    void disarm(Timer& timer) override { loop_.disarm(&timer); }

private:
    simulated::SimulatedLoop& loop_;
};

} // namespace gatewise::drive
