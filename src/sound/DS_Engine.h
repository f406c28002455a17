#pragma once

#include "platform/Machine.h"
#include "sound/Device.h"
#include "sound/LongWave.h"

#include <array>
#include <cstdint>
#include <initializer_list>
#include <string>

namespace gatewise {

/// The program's one mixer: nine channels, numbered from 1, each with a wave file of its own and three
/// echoes. Every operation is reported to the device's log first. No operation fails towards its caller: on a
/// channel that is not loaded, or does not exist, it does nothing.
class DS_Engine {
public:
    static constexpr std::int16_t kChannels = 9;
    static constexpr std::int16_t kEchoes = 3;

    DS_Engine(SoundDevice& device, EventLoop& loop) : device_(device), loop_(loop), waves_(device) {}
    ~DS_Engine() { releaseAll(); }
    DS_Engine(const DS_Engine&) = delete;
    DS_Engine& operator=(const DS_Engine&) = delete;

    /// Replaces what the channel holds; a load that fails leaves it as it was.
    void LoadWavToChannel(std::int16_t channel, const std::string& path);
    /// Hertz. The Get operations leave their out value alone when the channel is not loaded.
    void SetFrequency(std::int16_t channel, std::int32_t hertz);
    void GetFrequency(std::int16_t channel, std::int32_t& hertz);
    /// Hundredths of a decibel, -10000 to 0.
    void SetVolume(std::int16_t channel, std::int32_t volume);
    void GetVolume(std::int16_t channel, std::int32_t& volume);
    /// -10000 (left) to 10000 (right).
    void SetPan(std::int16_t channel, std::int32_t pan);
    void GetPan(std::int16_t channel, std::int32_t& pan);
    /// From the beginning.
    void PlayDXSound(std::int16_t channel, bool loop);
    /// Plays up to three duplicates of the channel, the i-th followed by a wait of i x delay milliseconds in
    /// which events run. A delay of 0 counts as 50. Returns after the last wait.
    void PlayEcho(std::int16_t channel, std::int16_t count, std::int32_t delay);
    void StopDXSound(std::int16_t channel);
    void ClearBuffer(std::int16_t channel);
    /// Safe to repeat.
    void Initialize_Engine();
    void Terminate_Engine();
    /// Reads "0" for every volume of the platform's range and nothing below it.
    void GetReadableVolume(std::int32_t volume, std::string& text);
    void GetSpeakerConfig(std::string& text);
    /// "headphone", "mono", "quad", "stereo", "surround" in any case; anything else is stereo.
    void SetSpeakerConfig(const std::string& name);
    /// Milliseconds; events run.
    void Pause(std::int32_t milliseconds);
    /// SetVolume for the fades: asks for no loaded channel.
    void ChangeVolume(std::int16_t channel, std::int16_t volume);

    /// Nothing is heard of what plays, and of what plays from now on; unmuted, all is as loud as it was set.
    void setMuted(bool muted);

private:
    /// A buffer with the volume that was set for it, heard or not.
    struct Sounding {
        SoundBuffer buffer = SoundBuffer::None;
        std::int32_t volume = 0;
    };
    struct Channel : Sounding {
        bool loaded = false;
        std::array<Sounding, kEchoes> echoes{};
    };

    void report(const char* name, std::initializer_list<SoundArgument> arguments) const;
    /// Null for a number outside 1 to 9.
    Channel* channelAt(std::int16_t channel);
    /// The channel's buffer, None when it is not loaded.
    SoundBuffer loadedBuffer(std::int16_t channel);
    void dropBuffer(SoundBuffer& buffer);
    void releaseAll();

    SoundDevice& device_;
    EventLoop& loop_;
    LongWave waves_;
    /// Sets a volume on the device, or none while muted. One out of range changes nothing.
    void setLoudness(Sounding& sounding, std::int32_t volume);

    bool open_ = false;
    bool muted_ = false;
    std::array<Channel, kChannels> channels_{};
};

} // namespace gatewise
