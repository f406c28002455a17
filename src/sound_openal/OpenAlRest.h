#pragma once

#include <AL/alc.h>

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>

namespace gatewise {

/// Lets the mixer of a device rest while there is nothing to hear: mixing silence costs processor time for as
/// long as the program runs. The mixer is woken by the next sound and sent to rest on a thread of its own
/// when the last one has run out. A device whose library cannot rest mixes on.
class OpenAlRest {
public:
    using Time = std::chrono::steady_clock::time_point;
    /// The end of a sound that plays until it is stopped.
    static constexpr Time kNever = Time::max();

    OpenAlRest() = default;
    ~OpenAlRest() { release(); }
    OpenAlRest(const OpenAlRest&) = delete;
    OpenAlRest& operator=(const OpenAlRest&) = delete;

    /// Watches over a device that is open, until `release`; it begins awake and rests soon unless told to
    /// play.
    void watch(ALCdevice* device);
    /// Wakes the device and lets go of it. To be called before the device is closed.
    void release();

    /// Sounds play until `end`, kNever for ever; a time that has passed: none does. Wakes the mixer before it
    /// returns.
    void playUntil(Time end);

    [[nodiscard]] bool resting() const;
    /// How many times the mixer was sent to rest.
    [[nodiscard]] int rests() const;
    /// How often the thread has looked whether it is time; while the mixer rests it does not.
    [[nodiscard]] int turns() const;

private:
    void run();
    void wake();

    ALCdevice* device_ = nullptr;
    mutable std::mutex mutex_;
    std::condition_variable changed_;
    std::thread thread_;
    Time end_{};
    int turns_ = 0;
    int rests_ = 0;
    bool resting_ = false;
    bool over_ = false;
};

} // namespace gatewise
