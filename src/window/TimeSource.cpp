#include "window/TimeSource.h"

#include <QCoreApplication>
#include <QDeadlineTimer>

namespace gatewise::window {

void RealTime::arm(Timer& timer, std::int64_t interval) {
    QTimer*& clock = running_[&timer];
    if (clock == nullptr) {
        clock = new QTimer(this);
        clock->setTimerType(Qt::PreciseTimer);
        connect(clock, &QTimer::timeout, this, [this, &timer] {
            if (due) due(timer);
        });
    }
    if (interval > 0)
        clock->start(static_cast<int>(interval));
    else
        clock->stop();
}

void RealTime::disarm(Timer& timer) {
    const auto at = running_.find(&timer);
    if (at != running_.end()) at->second->stop();
}

void RealTime::pass(std::int64_t milliseconds) {
    const QDeadlineTimer end(milliseconds);
    QTimer wake;
    wake.setSingleShot(true);
    wake.setTimerType(Qt::PreciseTimer);
    wake.start(static_cast<int>(milliseconds));
    while (!end.hasExpired()) QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
}

} // namespace gatewise::window
