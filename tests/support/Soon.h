#pragma once

#include <chrono>
#include <functional>
#include <thread>

namespace gatewise {

/// Waits for what another thread or process does: true as soon as `done` holds. It gives up only after a time
/// that a busy machine does not need either.
inline bool soon(const std::function<bool()>& done) {
    for (int i = 0; i < 3000; ++i) {
        if (done()) return true;
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    }
    return false;
}

} // namespace gatewise
