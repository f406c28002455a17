#pragma once

#include <AL/al.h>
#include <AL/alc.h>

#include <chrono>
#include <functional>
#include <memory>
#include <vector>

namespace gatewise {

/// How the outside is reached; the default is the machine's own loudspeakers.
struct OpenAlRoad {
    /// Null when there is no device. Runs on a thread of its own.
    std::function<ALCdevice*()> openDevice = [] { return alcOpenDevice(nullptr); };
    /// Attributes of the context, ended by 0; empty: none.
    std::vector<ALCint> contextAttributes;
    /// The clock by which a sound that nobody hears goes on.
    std::function<std::chrono::steady_clock::time_point()> now = [] {
        return std::chrono::steady_clock::now();
    };
};

/// The device and the context behind all sound. A sound server can take seconds to answer, or never answer;
/// therefore both are opened on a thread of their own and taken over when they are ready.
class OpenAlOutput {
public:
    explicit OpenAlOutput(OpenAlRoad road) : road_(std::move(road)) {}
    ~OpenAlOutput() { close(); }
    OpenAlOutput(const OpenAlOutput&) = delete;
    OpenAlOutput& operator=(const OpenAlOutput&) = delete;

    /// Begins to open unless that is done, under way, or failed a short while ago.
    void begin();
    /// Waits for the end of an opening, at most so long.
    void settle(std::chrono::milliseconds limit);
    /// True once, when an opening has succeeded since the last call: the context is current and empty.
    bool takeOver();
    [[nodiscard]] bool ready() const { return context_ != nullptr; }
    /// True when the device that was ready has gone (unplugged, server ended).
    [[nodiscard]] bool lost() const;
    void close();

    [[nodiscard]] ALCdevice* device() const { return device_; }
    /// How long openings have held up those who asked for them, at most: the limits of all waits that found
    /// one under way.
    [[nodiscard]] std::chrono::milliseconds heldUp() const { return heldUp_; }

private:
    struct Attempt; // shared with the thread

    OpenAlRoad road_;
    std::shared_ptr<Attempt> attempt_;
    std::chrono::steady_clock::time_point retryAt_{};
    std::chrono::milliseconds heldUp_{0};
    ALCdevice* device_ = nullptr;
    ALCcontext* context_ = nullptr;
};

} // namespace gatewise
