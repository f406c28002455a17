#pragma once

#include <cstdint>
#include <optional>
#include <vector>

namespace gatewise::simulated {

/// Which timer falls due next. Timers are opaque here; times are the ticks of the simulated clock, in
/// milliseconds.
class TimerQueue {
public:
    /// A timer that is not in the queue joins it behind all others; one that is keeps its place and only
    /// starts its interval anew. An interval below 1 never falls due.
    void arm(void* timer, std::int64_t interval, std::int64_t now);
    void disarm(void* timer);

    struct Due {
        void* timer;
        std::int64_t at;
    };
    /// Takes the timer that falls due first, not later than `until`, and sets its next turn one interval on.
    /// Of those that fall due together the one that joined first.
    std::optional<Due> takeDue(std::int64_t until);

private:
    struct Entry {
        void* timer;
        std::int64_t interval;
        std::int64_t due;
    };
    std::vector<Entry> entries_; // in the order of joining
};

} // namespace gatewise::simulated
