#include "sound_openal/OpenAlVoice.h"

#include <AL/alc.h>
#include <AL/alext.h>

#include <algorithm>
#include <cmath>
#include <cstring>

// Newer than the oldest headers that this is built with.
#ifndef AL_REMIX_UNMATCHED_SOFT
#define AL_REMIX_UNMATCHED_SOFT 0x0002
#endif

namespace gatewise {

namespace {

constexpr std::uint8_t kSilence8 = 0x80;

bool hasSources(const OpenAlVoice& voice) {
    return voice.sources[0] != 0;
}

/// Sample by sample: a compiler makes a fast loop of it that knows how wide one is.
template<class Sample> Bytes oneSidedOf(const WaveSound& wave, Side side) {
    constexpr std::size_t width = sizeof(Sample);
    const std::size_t step = width * wave.channels;
    const std::size_t frames = wave.samples.size() / step;
    const std::size_t right = side == Side::Right ? 1 : 0;
    const std::uint8_t* from = wave.samples.data() + (wave.channels == 2 ? right * width : 0);
    Bytes out(frames * 2 * width, width == 1 ? kSilence8 : std::uint8_t{0});
    std::uint8_t* to = out.data() + right * width;
    for (std::size_t i = 0; i < frames; ++i) std::memcpy(to + i * 2 * width, from + i * step, width);
    return out;
}

/// Each side straight to its loudspeaker, and the best conversion of rates that the library has: it is speech
/// of 8000 Hz on a device of 48000.
void tune(ALuint source) {
    if (alIsExtensionPresent("AL_SOFT_direct_channels_remix") == AL_TRUE)
        alSourcei(source, AL_DIRECT_CHANNELS_SOFT, AL_REMIX_UNMATCHED_SOFT);
    else if (alIsExtensionPresent("AL_SOFT_direct_channels") == AL_TRUE)
        alSourcei(source, AL_DIRECT_CHANNELS_SOFT, AL_TRUE);
    if (alIsExtensionPresent("AL_SOFT_source_resampler") == AL_TRUE)
        alSourcei(source, AL_SOURCE_RESAMPLER_SOFT, alGetInteger(AL_NUM_RESAMPLERS_SOFT) - 1);
}

} // namespace

Bytes oneSided(const WaveSound& wave, Side side) {
    return wave.bits == 8 ? oneSidedOf<std::uint8_t>(wave, side) : oneSidedOf<std::uint16_t>(wave, side);
}

OpenAlBuffers makeBuffers(const WaveSound& wave) {
    OpenAlBuffers buffers{};
    alGenBuffers(2, buffers.data());
    if (buffers[1] == 0) return {};
    const ALenum format = wave.bits == 8 ? AL_FORMAT_STEREO8 : AL_FORMAT_STEREO16;
    bool whole = true;
    for (const Side side : {Side::Left, Side::Right}) {
        const ALuint buffer = buffers[static_cast<std::size_t>(side)];
        const Bytes frames = oneSided(wave, side);
        alBufferData(buffer, format, frames.data(), static_cast<ALsizei>(frames.size()), wave.rate);
        // Asked of the buffer: the library's last error may be that of another thread.
        ALint size = 0;
        alGetBufferi(buffer, AL_SIZE, &size);
        whole = whole && static_cast<std::size_t>(size) == frames.size();
    }
    if (whole) return buffers;
    alDeleteBuffers(2, buffers.data());
    return {};
}

bool heard(const OpenAlVoice& voice) {
    constexpr std::int32_t kSilent = -9000; // the last of 16 bits
    return voice.settings.volume > kSilent;
}

float sideGain(Side side, std::int32_t volume, std::int32_t pan) {
    const std::int32_t lowered = side == Side::Left ? std::max(pan, 0) : std::max(-pan, 0);
    return static_cast<float>(std::pow(10.0, (volume - lowered) / 2000.0));
}

void attach(OpenAlVoice& voice) {
    OpenAlSound& sound = *voice.sound;
    if (hasSources(voice)) return;
    if (sound.buffers[0] == 0 && !sound.wave.samples.empty()) sound.buffers = makeBuffers(sound.wave);
    if (sound.buffers[0] == 0) return;
    alGetError();
    alGenSources(2, voice.sources.data());
    if (alGetError() != AL_NO_ERROR) {
        voice.sources = {};
        return;
    }
    for (std::size_t side = 0; side < 2; ++side) {
        tune(voice.sources[side]);
        alSourcei(voice.sources[side], AL_BUFFER, static_cast<ALint>(sound.buffers[side]));
    }
    applySettings(voice);
}

void detach(OpenAlVoice& voice) {
    if (hasSources(voice)) {
        alSourceStopv(2, voice.sources.data());
        alDeleteSources(2, voice.sources.data());
        voice.sources = {};
    }
    if (voice.sound.use_count() == 1 && voice.sound->buffers[0] != 0) {
        alDeleteBuffers(2, voice.sound->buffers.data());
        voice.sound->buffers = {};
    }
}

void applySettings(const OpenAlVoice& voice) {
    if (!hasSources(voice)) return;
    // Both sides change in the same mix, so that they never drift apart.
    alcSuspendContext(alcGetCurrentContext());
    for (const Side side : {Side::Left, Side::Right}) {
        const ALuint source = voice.sources[static_cast<std::size_t>(side)];
        alSourcef(source, AL_GAIN, sideGain(side, voice.settings.volume, voice.settings.pan));
        alSourcef(source, AL_PITCH,
                  static_cast<float>(voice.settings.frequency) / static_cast<float>(voice.sound->wave.rate));
    }
    alcProcessContext(alcGetCurrentContext());
}

void startSources(const OpenAlVoice& voice, std::int64_t frame) {
    if (!hasSources(voice)) return;
    alSourceStopv(2, voice.sources.data());
    for (const ALuint source : voice.sources) {
        alSourcei(source, AL_LOOPING, voice.loop ? AL_TRUE : AL_FALSE);
        alSourcei(source, AL_SAMPLE_OFFSET, static_cast<ALint>(frame));
    }
    alSourcePlayv(2, voice.sources.data());
}

void stopSources(const OpenAlVoice& voice) {
    if (hasSources(voice)) alSourceStopv(2, voice.sources.data());
}

namespace {

VoiceClock::duration timeOf(const OpenAlVoice& voice, std::int64_t frames) {
    const std::chrono::duration<double> seconds(static_cast<double>(frames) / voice.settings.frequency);
    return std::chrono::duration_cast<VoiceClock::duration>(seconds);
}

} // namespace

std::optional<std::int64_t> frameNow(const OpenAlVoice& voice, VoiceClock::time_point now) {
    if (!voice.playing) return std::nullopt;
    const auto length = voice.sound->frames;
    const double seconds = std::chrono::duration<double>(now - voice.started).count();
    const auto frame = static_cast<std::int64_t>(seconds * voice.settings.frequency);
    if (voice.loop) return frame % length;
    if (frame >= length) return std::nullopt;
    return frame;
}

VoiceClock::time_point startOf(const OpenAlVoice& voice, std::int64_t frame, VoiceClock::time_point now) {
    return now - timeOf(voice, frame);
}

VoiceClock::time_point endOf(const OpenAlVoice& voice) {
    if (!voice.playing || !heard(voice)) return VoiceClock::time_point::min();
    return voice.loop ? VoiceClock::time_point::max() : voice.started + timeOf(voice, voice.sound->frames);
}

} // namespace gatewise
