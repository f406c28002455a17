#ifdef _WIN32

#include "sound_directsound/DirectSoundVoice.h"

#include <algorithm>
#include <limits>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <mmsystem.h>

#include <dsound.h>

namespace gatewise {

namespace {

constexpr DWORD kBufferFlags = DSBCAPS_CTRLFREQUENCY | DSBCAPS_CTRLPAN | DSBCAPS_CTRLVOLUME | DSBCAPS_STATIC;

WAVEFORMATEX formatOf(const WaveSound& wave) {
    WAVEFORMATEX format{};
    format.wFormatTag = WAVE_FORMAT_PCM;
    format.nChannels = wave.channels;
    format.nSamplesPerSec = static_cast<DWORD>(wave.rate);
    format.wBitsPerSample = wave.bits;
    format.nBlockAlign = static_cast<WORD>(wave.channels * wave.bits / 8);
    format.nAvgBytesPerSec = format.nSamplesPerSec * format.nBlockAlign;
    return format;
}

/// The card hands its memory out in two pieces when it wraps around.
bool fill(IDirectSoundBuffer& buffer, ByteView samples) {
    void* first = nullptr;
    void* second = nullptr;
    DWORD firstSize = 0;
    DWORD secondSize = 0;
    const auto size = static_cast<DWORD>(samples.size());
    if (FAILED(buffer.Lock(0, size, &first, &firstSize, &second, &secondSize, 0))) return false;
    std::copy_n(samples.data(), firstSize, static_cast<std::uint8_t*>(first));
    if (second != nullptr)
        std::copy_n(samples.data() + firstSize, secondSize, static_cast<std::uint8_t*>(second));
    buffer.Unlock(first, firstSize, second, secondSize);
    return true;
}

IDirectSoundBuffer* makeBuffer(IDirectSound* sound, const WaveSound& wave) {
    if (sound == nullptr || wave.samples.size() > std::numeric_limits<DWORD>::max()) return nullptr;
    WAVEFORMATEX format = formatOf(wave);
    DSBUFFERDESC description{};
    description.dwSize = sizeof description;
    description.dwFlags = kBufferFlags;
    description.dwBufferBytes = static_cast<DWORD>(wave.samples.size());
    description.lpwfxFormat = &format;
    IDirectSoundBuffer* buffer = nullptr;
    if (FAILED(sound->CreateSoundBuffer(&description, &buffer, nullptr))) return nullptr;
    if (fill(*buffer, wave.samples)) return buffer;
    buffer->Release();
    return nullptr;
}

} // namespace

DirectSoundVoice::DirectSoundVoice(IDirectSound* sound, const WaveSound& wave)
    : buffer_(makeBuffer(sound, wave)), settings_{.frequency = wave.rate} {}

DirectSoundVoice::DirectSoundVoice(IDirectSound* sound, const DirectSoundVoice& other)
    : settings_(other.settings_) {
    if (sound == nullptr || other.buffer_ == nullptr) return;
    if (FAILED(sound->DuplicateSoundBuffer(other.buffer_, &buffer_))) buffer_ = nullptr;
    applySettings();
}

DirectSoundVoice::~DirectSoundVoice() {
    if (buffer_ == nullptr) return;
    buffer_->Stop();
    buffer_->Release();
}

void DirectSoundVoice::applySettings() {
    if (buffer_ == nullptr) return;
    buffer_->SetVolume(settings_.volume);
    buffer_->SetPan(settings_.pan);
    buffer_->SetFrequency(static_cast<DWORD>(settings_.frequency));
}

void DirectSoundVoice::play(bool loop) {
    if (buffer_ == nullptr) return;
    buffer_->Stop();
    buffer_->SetCurrentPosition(0);
    buffer_->Play(0, 0, loop ? DSBPLAY_LOOPING : 0);
}

void DirectSoundVoice::stop() {
    if (buffer_ != nullptr) buffer_->Stop();
}

void DirectSoundVoice::setVolume(std::int32_t value) {
    if (settings_.setVolume(value)) applySettings();
}

void DirectSoundVoice::setPan(std::int32_t value) {
    if (settings_.setPan(value)) applySettings();
}

void DirectSoundVoice::setFrequency(std::int32_t value) {
    if (settings_.setFrequency(value)) applySettings();
}

} // namespace gatewise

#endif
