#pragma once

#include "platform/Binary.h"
#include "sound/Device.h"

#include <functional>
#include <map>
#include <memory>

struct IDirectSound;

namespace gatewise {

class DirectSoundVoice;

/// The sound device over DirectSound. Without a sound card, or where a buffer cannot be made, it pretends:
/// every buffer keeps its settings, and nothing is heard.
class DirectSoundDevice : public SoundDevice {
public:
    /// The native handle of the program's main window, asked for when the device is opened; null where there
    /// is none yet: the desktop's stands in.
    using Window = std::function<void*()>;
    explicit DirectSoundDevice(Window window = {});
    ~DirectSoundDevice() override;
    DirectSoundDevice(const DirectSoundDevice&) = delete;
    DirectSoundDevice& operator=(const DirectSoundDevice&) = delete;

    /// Always true.
    bool open() override;
    void close() override;
    SoundBuffer load(const std::string& path) override;
    SoundBuffer duplicate(SoundBuffer buffer) override;
    void release(SoundBuffer buffer) override;
    void play(SoundBuffer buffer, bool loop) override;
    void stop(SoundBuffer buffer) override;
    void setVolume(SoundBuffer buffer, std::int32_t volume) override;
    void setPan(SoundBuffer buffer, std::int32_t pan) override;
    void setFrequency(SoundBuffer buffer, std::int32_t frequency) override;
    [[nodiscard]] std::optional<std::int32_t> volume(SoundBuffer buffer) const override;
    [[nodiscard]] std::optional<std::int32_t> pan(SoundBuffer buffer) const override;
    [[nodiscard]] std::optional<std::int32_t> frequency(SoundBuffer buffer) const override;
    void setSpeakers(std::int32_t value) override;
    /// What was asked for last: newer systems keep the set-up of their own.
    [[nodiscard]] std::int32_t speakers() const override { return speakers_; }
    void playOnce(const std::string& path) override;

    /// Whether there is a sound card behind it.
    [[nodiscard]] bool heard() const { return sound_ != nullptr; }

private:
    DirectSoundVoice* find(SoundBuffer buffer);
    [[nodiscard]] const DirectSoundVoice* find(SoundBuffer buffer) const;
    SoundBuffer add(std::unique_ptr<DirectSoundVoice> voice);

    Window window_;
    IDirectSound* sound_ = nullptr;
    std::map<SoundBuffer, std::unique_ptr<DirectSoundVoice>> voices_;
    std::uint32_t last_ = 0;
    Bytes once_; // what playOnce plays, for as long as the system reads it
    std::int32_t speakers_ = 0;
};

/// The device of the program proper.
std::unique_ptr<SoundDevice> makeDirectSoundDevice(DirectSoundDevice::Window window);

} // namespace gatewise
