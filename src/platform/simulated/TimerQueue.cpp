#include "platform/simulated/TimerQueue.h"

#include <algorithm>

namespace gatewise::simulated {

void TimerQueue::arm(void* timer, std::int64_t interval, std::int64_t now) {
    auto at =
        std::find_if(entries_.begin(), entries_.end(), [&](const Entry& e) { return e.timer == timer; });
    if (at == entries_.end()) at = entries_.insert(entries_.end(), Entry{timer, 0, 0});
    at->interval = interval;
    at->due = now + interval;
}

void TimerQueue::disarm(void* timer) {
    std::erase_if(entries_, [&](const Entry& e) { return e.timer == timer; });
}

std::optional<TimerQueue::Due> TimerQueue::takeDue(std::int64_t until) {
    Entry* first = nullptr;
    for (Entry& entry : entries_) {
        if (entry.interval < 1 || entry.due > until) continue;
        if (first == nullptr || entry.due < first->due) first = &entry;
    }
    if (first == nullptr) return std::nullopt;
    const Due due{first->timer, first->due};
    first->due += first->interval;
    return due;
}

} // namespace gatewise::simulated
