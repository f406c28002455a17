#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>

namespace gatewise {

/// One argument of a sound operation, as an observer sees it.
using SoundArgument = std::variant<std::int32_t, bool, std::string>;

/// Hears of every sound operation that the program asks for, before it is carried out and whether or not
/// anything is heard.
class SoundLog {
public:
    virtual ~SoundLog() = default;
    virtual void operation(std::string_view name, std::span<const SoundArgument> arguments) = 0;
};

/// Names a buffer of a device. A name is never given twice.
enum class SoundBuffer : std::uint32_t { None = 0 };

inline constexpr std::int32_t kLowestVolume = -10000; // hundredths of a decibel
inline constexpr std::int32_t kHighestVolume = 0;
inline constexpr std::int32_t kFarthestPan = 10000; // to either side, hundredths of a decibel
inline constexpr std::int32_t kLowestFrequency = 100;
inline constexpr std::int32_t kHighestFrequency = 100000;
inline constexpr std::int32_t kStereoSpeakers = 4;

/// What one buffer plays by.
struct SoundSettings {
    std::int32_t volume = kHighestVolume;
    std::int32_t pan = 0;
    std::int32_t frequency = 8000;

    /// Each takes a value of its range; false, and nothing changes, for any other.
    bool setVolume(std::int32_t value);
    bool setPan(std::int32_t value);
    bool setFrequency(std::int32_t value);
};

/// The output of sound: buffers made from wave files, each with its own loudness, side and rate, all mixed.
/// A device that has nothing to play on pretends; it never tells the pilot. Calls on a buffer that does not
/// exist do nothing, and so do values out of range.
class SoundDevice {
public:
    virtual ~SoundDevice() = default;

    /// Makes ready to play. May be called again at any time and returns soon, even where the outside is slow.
    /// False: buffers cannot be made.
    virtual bool open() = 0;
    /// Releases all buffers and the outside.
    virtual void close() = 0;

    /// A buffer from a wave file; None when the file is missing or no wave that can be played.
    virtual SoundBuffer load(const std::string& path) = 0;
    /// A second buffer over the same sound with the same volume, pan and frequency, standing still. It
    /// outlives the first.
    virtual SoundBuffer duplicate(SoundBuffer buffer) = 0;
    /// Stops and forgets a buffer.
    virtual void release(SoundBuffer buffer) = 0;

    /// Plays from the beginning, also when it is playing already.
    virtual void play(SoundBuffer buffer, bool loop) = 0;
    virtual void stop(SoundBuffer buffer) = 0;

    /// kLowestVolume to kHighestVolume.
    virtual void setVolume(SoundBuffer buffer, std::int32_t volume) = 0;
    /// -kFarthestPan (left) to kFarthestPan (right): the far side is lowered by |pan| / 100 dB.
    virtual void setPan(SoundBuffer buffer, std::int32_t pan) = 0;
    /// Playback rate in hertz, kLowestFrequency to kHighestFrequency.
    virtual void setFrequency(SoundBuffer buffer, std::int32_t frequency) = 0;
    /// Nothing for a buffer that does not exist.
    [[nodiscard]] virtual std::optional<std::int32_t> volume(SoundBuffer buffer) const = 0;
    [[nodiscard]] virtual std::optional<std::int32_t> pan(SoundBuffer buffer) const = 0;
    [[nodiscard]] virtual std::optional<std::int32_t> frequency(SoundBuffer buffer) const = 0;

    /// Speaker set-up: 1 headphone, 2 mono, 3 quad, 4 stereo, 5 surround.
    virtual void setSpeakers(std::int32_t value) = 0;
    [[nodiscard]] virtual std::int32_t speakers() const = 0;

    /// Plays a short wave file beside the buffers, in the place of the one before. Needs no open().
    virtual void playOnce(const std::string& path) = 0;

    /// The observer of what the program asks for, or null. Not owned.
    SoundLog* log = nullptr;
};

/// The click of a button: reported as an operation, then played.
void PlaySoundA(SoundDevice& device, const std::string& path);

} // namespace gatewise
