#pragma once

#include "platform/simulated/SimulatedLoop.h"
#include "window/TimeSource.h"

namespace gatewise::gtwindow {

/// Time that passes only on request, for the timers and waits that ship.
class SimulatedTime : public window::TimeSource {
public:
    explicit SimulatedTime(simulated::SimulatedLoop& loop) : loop_(loop) {
        loop_.tick = [this](void* timer) {
            if (due) due(*static_cast<Timer*>(timer));
        };
    }
    void arm(Timer& timer, std::int64_t interval) override { loop_.arm(&timer, interval); }
    void disarm(Timer& timer) override { loop_.disarm(&timer); }
    void pass(std::int64_t milliseconds) override { loop_.advance(milliseconds); }

private:
    simulated::SimulatedLoop& loop_;
};

} // namespace gatewise::gtwindow
