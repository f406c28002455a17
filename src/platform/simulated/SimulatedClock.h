#pragma once

#include "platform/Machine.h"

namespace gatewise::simulated {

/// A clock that stands still: local time is set, and moves only together with the ticks.
class SimulatedClock : public Clock {
public:
    SimulatedClock();
    [[nodiscard]] DateTime now() const override;
    [[nodiscard]] int bias() const override { return bias_; }
    [[nodiscard]] std::int64_t ticks() const override { return ticks_; }

    /// Sets local time; the ticks stay.
    void set(const DateTime& moment);
    void setBias(int minutes) { bias_ = minutes; }
    /// Runs on to a tick; one that is past already changes nothing.
    void moveTo(std::int64_t tick);

private:
    std::int64_t local_ = 0; // milliseconds since the day in which date serials begin
    std::int64_t ticks_ = 0;
    int bias_ = 0;
};

} // namespace gatewise::simulated
