#include "platform/Native.h"

#include <algorithm>
#include <chrono>
#include <ctime>

namespace gatewise::native {

namespace {

class PosixClock : public Clock {
public:
    [[nodiscard]] DateTime now() const override {
        timespec moment{};
        clock_gettime(CLOCK_REALTIME, &moment);
        std::tm local{};
        localtime_r(&moment.tv_sec, &local);
        return {local.tm_year + 1900,
                local.tm_mon + 1,
                local.tm_mday,
                local.tm_hour,
                local.tm_min,
                std::min(local.tm_sec, 59),
                static_cast<int>(moment.tv_nsec / 1000000)};
    }

    /// Standard time alone, also in summer: daylight saving is no part of the bias.
    [[nodiscard]] int bias() const override {
        tzset();
        return static_cast<int>(timezone / 60);
    }

    [[nodiscard]] std::int64_t ticks() const override {
        using namespace std::chrono;
        return duration_cast<milliseconds>(steady_clock::now().time_since_epoch()).count();
    }
};

} // namespace

std::unique_ptr<Clock> systemClock() {
    return std::make_unique<PosixClock>();
}

} // namespace gatewise::native
