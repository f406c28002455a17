#pragma once

#include "platform/simulated/SimulatedClock.h"
#include "platform/simulated/TimerQueue.h"

#include <functional>

namespace gatewise::simulated {

/// The event loop of a machine whose time moves only on request. Everything that moves the clock goes
/// through `advance`.
class SimulatedLoop : public EventLoop {
public:
    explicit SimulatedLoop(SimulatedClock& clock) : clock_(clock) {}

    void runModal(std::string_view screen, const std::function<bool()>& done) override;
    void wait(std::int64_t milliseconds) override { advance(milliseconds); }

    /// Moves the clock by so many milliseconds and runs every armed timer that falls due on the way. Work of
    /// a timer that waits itself takes its time out of these; it can also take more.
    void advance(std::int64_t milliseconds);

    void arm(void* timer, std::int64_t interval) { timers_.arm(timer, interval, clock_.ticks()); }
    void disarm(void* timer) { timers_.disarm(timer); }

    /// What runs a timer that falls due.
    std::function<void(void* timer)> tick;
    /// What reads further input while a modal screen waits.
    std::function<void(std::string_view screen, const std::function<bool()>& done)> modal;
    /// True once the program ends: nothing falls due any more.
    std::function<bool()> stopped;

private:
    SimulatedClock& clock_;
    TimerQueue timers_;
};

} // namespace gatewise::simulated
