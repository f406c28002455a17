#pragma once

#include "forms/Control.h"

#include <QObject>
#include <QTimer>

#include <cstdint>
#include <functional>
#include <map>

namespace gatewise::window {

/// What makes time pass for the timers of the forms and for waits in the middle of work. Times are in
/// milliseconds.
class TimeSource {
public:
    virtual ~TimeSource() = default;
    /// The timer falls due after each `interval` from now on; never when that is below 1. What was armed
    /// before starts anew.
    virtual void arm(Timer& timer, std::int64_t interval) = 0;
    virtual void disarm(Timer& timer) = 0;
    /// Runs events and timers for so long.
    virtual void pass(std::int64_t milliseconds) = 0;

    /// What is told of a timer that falls due.
    std::function<void(Timer& timer)> due;
};

/// The computer's own time.
class RealTime : public QObject, public TimeSource {
    Q_OBJECT
public:
    void arm(Timer& timer, std::int64_t interval) override;
    void disarm(Timer& timer) override;
    void pass(std::int64_t milliseconds) override;

private:
    std::map<Timer*, QTimer*> running_;
};

} // namespace gatewise::window
