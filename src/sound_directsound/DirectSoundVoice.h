#pragma once

#include "sound/Device.h"
#include "sound/WaveFile.h"

struct IDirectSound;
struct IDirectSoundBuffer;

namespace gatewise {

/// One buffer of the sound card with its settings. Without a card, or when the card refuses the sound, it has
/// the settings alone.
class DirectSoundVoice {
public:
    /// A buffer that holds the sound, standing at its beginning. `sound` may be null.
    DirectSoundVoice(IDirectSound* sound, const WaveSound& wave);
    /// A second buffer over the same samples, with the same settings, standing still.
    DirectSoundVoice(IDirectSound* sound, const DirectSoundVoice& other);
    ~DirectSoundVoice();
    DirectSoundVoice(const DirectSoundVoice&) = delete;
    DirectSoundVoice& operator=(const DirectSoundVoice&) = delete;

    void play(bool loop);
    void stop();
    /// Each takes a value of its range and ignores any other.
    void setVolume(std::int32_t value);
    void setPan(std::int32_t value);
    void setFrequency(std::int32_t value);
    [[nodiscard]] const SoundSettings& settings() const { return settings_; }

private:
    void applySettings();

    IDirectSoundBuffer* buffer_ = nullptr;
    SoundSettings settings_;
};

} // namespace gatewise
