#include "platform/simulated/SimulatedClock.h"

namespace gatewise::simulated {

namespace {

constexpr DateTime kStart{2002, 6, 15, 8, 30};
constexpr std::int64_t kDay = 24LL * 60 * 60 * 1000;

} // namespace

SimulatedClock::SimulatedClock() {
    set(kStart);
}

DateTime SimulatedClock::now() const {
    const std::int64_t days = local_ >= 0 ? local_ / kDay : -((-local_ + kDay - 1) / kDay);
    const auto rest = static_cast<int>(local_ - days * kDay);
    DateTime moment = fromDaySerial(days);
    moment.hour = rest / 3600000;
    moment.minute = rest / 60000 % 60;
    moment.second = rest / 1000 % 60;
    moment.millisecond = rest % 1000;
    return moment;
}

void SimulatedClock::set(const DateTime& m) {
    local_ = daySerial(m) * kDay + ((m.hour * 60LL + m.minute) * 60 + m.second) * 1000 + m.millisecond;
}

void SimulatedClock::moveTo(std::int64_t tick) {
    if (tick <= ticks_) return;
    local_ += tick - ticks_;
    ticks_ = tick;
}

} // namespace gatewise::simulated
