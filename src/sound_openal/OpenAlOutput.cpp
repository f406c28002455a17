#include "sound_openal/OpenAlOutput.h"

#include <AL/alext.h>

#include <condition_variable>
#include <mutex>
#include <system_error>
#include <thread>
#include <utility>

namespace gatewise {

namespace {

constexpr std::chrono::minutes kRetryAfter{2};
// An opening under way is better over before the program ends; one that hangs is left behind.
constexpr std::chrono::milliseconds kLastWait{300};

void closeAll(ALCdevice* device, ALCcontext* context) {
    if (context != nullptr) alcDestroyContext(context);
    if (device != nullptr) alcCloseDevice(device);
}

} // namespace

struct OpenAlOutput::Attempt {
    std::mutex mutex;
    std::condition_variable over;
    bool done = false;
    bool abandoned = false; // nobody waits any more: the thread closes what it opened
    ALCdevice* device = nullptr;
    ALCcontext* context = nullptr;

    void run(const OpenAlRoad& road) {
        ALCdevice* opened = road.openDevice();
        ALCcontext* made = nullptr;
        if (opened != nullptr)
            made = alcCreateContext(opened,
                                    road.contextAttributes.empty() ? nullptr : road.contextAttributes.data());
        if (made == nullptr) closeAll(std::exchange(opened, nullptr), nullptr);
        const std::lock_guard lock(mutex);
        if (abandoned) closeAll(std::exchange(opened, nullptr), std::exchange(made, nullptr));
        device = opened;
        context = made;
        done = true;
        over.notify_all();
    }
};

void OpenAlOutput::begin() {
    if (ready() || attempt_ || std::chrono::steady_clock::now() < retryAt_) return;
    auto attempt = std::make_shared<Attempt>();
    try {
        std::thread([attempt, road = road_] { attempt->run(road); }).detach();
    } catch (const std::system_error&) {
        retryAt_ = std::chrono::steady_clock::now() + kRetryAfter;
        return;
    }
    attempt_ = std::move(attempt);
}

void OpenAlOutput::settle(std::chrono::milliseconds limit) {
    if (!attempt_) return;
    std::unique_lock lock(attempt_->mutex);
    if (!attempt_->done) heldUp_ += limit;
    attempt_->over.wait_for(lock, limit, [&] { return attempt_->done; });
}

bool OpenAlOutput::takeOver() {
    if (!attempt_) return false;
    {
        const std::lock_guard lock(attempt_->mutex);
        if (!attempt_->done) return false;
        device_ = attempt_->device;
        context_ = attempt_->context;
    }
    attempt_.reset();
    if (context_ != nullptr && alcMakeContextCurrent(context_) == ALC_TRUE) return true;
    close();
    retryAt_ = std::chrono::steady_clock::now() + kRetryAfter;
    return false;
}

bool OpenAlOutput::lost() const {
    if (!ready() || alcIsExtensionPresent(device_, "ALC_EXT_disconnect") != ALC_TRUE) return false;
    ALCint connected = ALC_TRUE;
    alcGetIntegerv(device_, ALC_CONNECTED, 1, &connected);
    return connected != ALC_TRUE;
}

void OpenAlOutput::close() {
    settle(kLastWait);
    if (const auto attempt = std::exchange(attempt_, nullptr)) {
        const std::lock_guard lock(attempt->mutex);
        attempt->abandoned = true;
        closeAll(std::exchange(attempt->device, nullptr), std::exchange(attempt->context, nullptr));
    }
    if (context_ != nullptr && alcGetCurrentContext() == context_) alcMakeContextCurrent(nullptr);
    closeAll(std::exchange(device_, nullptr), std::exchange(context_, nullptr));
}

} // namespace gatewise
