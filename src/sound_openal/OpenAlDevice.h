#pragma once

#include "platform/InFile.h"
#include "sound/Device.h"
#include "sound_openal/OpenAlOutput.h"
#include "sound_openal/OpenAlReader.h"
#include "sound_openal/OpenAlRest.h"
#include "sound_openal/OpenAlVoice.h"

#include <map>
#include <memory>
#include <mutex>

namespace gatewise {

/// The sound device over OpenAL Soft. It keeps every buffer with its settings itself and gives it to the
/// library when that is ready: a sound that was started meanwhile, or before the loudspeakers were unplugged
/// and plugged in again, comes in at the place where it would be; so does a long sound once it has been read
/// beside the program's own work. Without a device it pretends.
class OpenAlDevice : public SoundDevice {
public:
    explicit OpenAlDevice(OpenAlRoad road = {});
    ~OpenAlDevice() override;

    /// Waits for the loudspeakers a fraction of a second at most. Always true.
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
    void setSpeakers(std::int32_t value) override { speakers_ = value; }
    [[nodiscard]] std::int32_t speakers() const override { return speakers_; }
    void playOnce(const std::string& path) override;

    /// The outside, for tests that render it.
    [[nodiscard]] const OpenAlOutput& output() const { return output_; }
    /// Whether the mixer stands still because nothing is to be heard.
    [[nodiscard]] bool resting() const { return rest_.resting(); }
    /// How often the thread that sends it to rest has looked at the time: a rest costs none.
    [[nodiscard]] int turnsOfRest() const { return rest_.turns(); }
    /// Whether a long sound is being read.
    [[nodiscard]] bool reading() const { return reader_.busy(); }

private:
    OpenAlVoice* find(SoundBuffer buffer);
    [[nodiscard]] const OpenAlVoice* find(SoundBuffer buffer) const;
    // These are behind the guard.
    SoundBuffer add(OpenAlVoice voice);
    /// Hands all voices to an output that has become ready since.
    void catchUp();
    /// Gives the voice its sources, or orders the sound for which it takes them.
    void give(OpenAlVoice& voice);
    /// A voice that plays goes on where it would be, one that has run out ends.
    void comeIn(OpenAlVoice& voice);
    void start(OpenAlVoice& voice, std::int64_t frame);
    /// Tells the mixer how long there is something to hear.
    void keepAwake();

    // These take it.
    void take(OpenAlReader::Sound sound, const OpenAlBuffers& buffers);
    void dropOutput();

    const std::function<VoiceClock::time_point()> now_;
    std::mutex guard_; // of the voices, which the reader's thread gives their sources, too
    OpenAlOutput output_;
    OpenAlRest rest_; // lets go of the output's device before that is closed
    std::map<SoundBuffer, OpenAlVoice> voices_;
    OpenAlReader reader_; // ends before what it reads for
    std::uint32_t last_ = 0;
    SoundBuffer click_ = SoundBuffer::None;
    std::string clickPath_; // of the click, and its file as it was read
    files::Stamp clickStamp_;
    std::int32_t speakers_ = 0;
    bool waited_ = false;
};

/// The device of the program proper.
std::unique_ptr<SoundDevice> makeOpenAlDevice();

} // namespace gatewise
