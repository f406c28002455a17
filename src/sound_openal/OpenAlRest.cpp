#include "sound_openal/OpenAlRest.h"

#include <AL/alext.h>

#include <system_error>

namespace gatewise {

namespace {

// The tail of a sound is still on its way to the loudspeakers when its last sample has been mixed.
constexpr std::chrono::milliseconds kTail{500};

template<typename Function> Function* deviceFunction(ALCdevice* device, const char* name) {
    return reinterpret_cast<Function*>(alcGetProcAddress(device, name));
}

bool canRest(ALCdevice* device) {
    return device != nullptr && alcIsExtensionPresent(device, "ALC_SOFT_pause_device") == ALC_TRUE &&
           deviceFunction<void(ALCdevice*)>(device, "alcDevicePauseSOFT") != nullptr &&
           deviceFunction<void(ALCdevice*)>(device, "alcDeviceResumeSOFT") != nullptr;
}

} // namespace

void OpenAlRest::watch(ALCdevice* device) {
    release();
    if (!canRest(device)) return;
    device_ = device;
    end_ = std::chrono::steady_clock::now();
    over_ = resting_ = false;
    try {
        thread_ = std::thread([this] { run(); });
    } catch (const std::system_error&) {
        device_ = nullptr;
    }
}

void OpenAlRest::release() {
    if (device_ == nullptr) return;
    {
        const std::lock_guard lock(mutex_);
        over_ = true;
        wake();
    }
    changed_.notify_all();
    thread_.join();
    device_ = nullptr;
}

void OpenAlRest::playUntil(Time end) {
    if (device_ == nullptr) return;
    {
        const std::lock_guard lock(mutex_);
        end_ = end;
        if (end > std::chrono::steady_clock::now()) wake();
    }
    changed_.notify_all();
}

bool OpenAlRest::resting() const {
    const std::lock_guard lock(mutex_);
    return resting_;
}

int OpenAlRest::rests() const {
    const std::lock_guard lock(mutex_);
    return rests_;
}

int OpenAlRest::turns() const {
    const std::lock_guard lock(mutex_);
    return turns_;
}

void OpenAlRest::wake() {
    if (!resting_) return;
    deviceFunction<void(ALCdevice*)>(device_, "alcDeviceResumeSOFT")(device_);
    resting_ = false;
}

void OpenAlRest::run() {
    std::unique_lock lock(mutex_);
    while (!over_) {
        ++turns_;
        const Time wanted = end_;
        if (resting_) {
            // Not for a new end: a sound may have come and gone again before this thread gets its turn.
            changed_.wait(lock, [&] { return over_ || !resting_; });
        } else if (wanted == kNever) {
            changed_.wait(lock, [&] { return over_ || end_ != wanted; });
        } else if (!changed_.wait_until(lock, wanted + kTail, [&] { return over_ || end_ != wanted; })) {
            deviceFunction<void(ALCdevice*)>(device_, "alcDevicePauseSOFT")(device_);
            resting_ = true;
            ++rests_;
        }
    }
}

} // namespace gatewise
