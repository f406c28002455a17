#pragma once

#include "sound/Device.h"
#include "sound/WaveFile.h"

#include <AL/al.h>

#include <array>
#include <chrono>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

// A voice is one sound as it plays: two sources, one for each ear, each with a gain of its own. The position
// of a source in space would let one side leak into the other; this way the far side is lowered exactly.

namespace gatewise {

using VoiceClock = std::chrono::steady_clock;

enum class Side : std::uint8_t { Left, Right };

using OpenAlBuffers = std::array<ALuint, 2>; // by side, 0: none

/// A wave file's sound, shared by a channel and its echoes, with the library's buffers once they are needed.
struct OpenAlSound {
    WaveSound wave;          // a long sound's without the samples
    std::int64_t frames = 0; // of the sound
    std::string path;        // a long sound's file; empty: the samples are here
    bool ordered = false;    // a long sound is being read
    OpenAlBuffers buffers{};
};

struct OpenAlVoice {
    std::shared_ptr<OpenAlSound> sound;
    SoundSettings settings;
    bool playing = false; // was started and not stopped; it may have run out
    bool loop = false;
    VoiceClock::time_point started{};
    std::array<ALuint, 2> sources{}; // by side, 0: none
    int rests = 0;                   // of the mixer when the sources were started: since then they went along
};

/// Whether anything of the voice can be heard: the loudest sound has a bit of 16 left.
bool heard(const OpenAlVoice& voice);

/// Frames of left and right samples with one side silent; a mono sound stands on the given side.
Bytes oneSided(const WaveSound& wave, Side side);

/// Gain of a side under a volume and a pan in hundredths of a decibel.
float sideGain(Side side, std::int32_t volume, std::int32_t pan);

/// The library's buffers for a sound; none where it has no memory for them. On any thread.
OpenAlBuffers makeBuffers(const WaveSound& wave);

/// Gives the voice sources of the current context. Where the library has none to give, or
/// the sound has no buffers and no samples to make them of, it stays silent.
void attach(OpenAlVoice& voice);
/// Takes the sources away, and the buffers when no other voice shares the sound.
void detach(OpenAlVoice& voice);

/// Hands gains and rate to the sources.
void applySettings(const OpenAlVoice& voice);
/// Starts both sides in the same instant, `frame` frames into the sound.
void startSources(const OpenAlVoice& voice, std::int64_t frame);
void stopSources(const OpenAlVoice& voice);

/// The frame at which a voice that was started stands by the clock; nothing when it has run out or is
/// stopped.
std::optional<std::int64_t> frameNow(const OpenAlVoice& voice, VoiceClock::time_point now);
/// When a voice that stands at `frame` now would have been started at its present rate.
VoiceClock::time_point startOf(const OpenAlVoice& voice, std::int64_t frame, VoiceClock::time_point now);
/// Until when a voice is heard: the greatest time for a loop, the least for one that is stopped or silent.
VoiceClock::time_point endOf(const OpenAlVoice& voice);

} // namespace gatewise
