#include "platform/simulated/SimulatedLoop.h"

#include <algorithm>

namespace gatewise::simulated {

void SimulatedLoop::runModal(std::string_view screen, const std::function<bool()>& done) {
    if (modal) modal(screen, done);
}

void SimulatedLoop::advance(std::int64_t milliseconds) {
    const std::int64_t target = clock_.ticks() + std::max<std::int64_t>(milliseconds, 0);
    while (!stopped || !stopped()) {
        const auto due = timers_.takeDue(target);
        if (!due) break;
        clock_.moveTo(due->at);
        if (tick) tick(due->timer);
    }
    clock_.moveTo(target);
}

} // namespace gatewise::simulated
