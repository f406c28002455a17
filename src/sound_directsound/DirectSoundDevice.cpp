#ifdef _WIN32

#include "sound_directsound/DirectSoundDevice.h"

#include "platform/Files.h"
#include "sound/WaveFile.h"
#include "sound_directsound/DirectSoundVoice.h"

#include <limits>
#include <utility>

#ifndef NOMINMAX
#define NOMINMAX
#endif
#include <windows.h>

#include <mmsystem.h>

#include <dsound.h>

namespace gatewise {

namespace {

/// The file as the system may read it from memory: it believes the size that the head claims. Nothing where
/// there is no head.
Bytes wholeForm(Bytes file) {
    constexpr std::size_t kHead = 8; // "RIFF" and the size of what follows
    if (file.size() <= kHead || file.size() > std::numeric_limits<std::uint32_t>::max()) return {};
    for (std::size_t i = 0, size = file.size() - kHead; i < 4; ++i)
        file[4 + i] = static_cast<std::uint8_t>(size >> (8 * i) & 0xFFU);
    return file;
}

} // namespace

DirectSoundDevice::DirectSoundDevice(Window window) : window_(std::move(window)) {}

DirectSoundDevice::~DirectSoundDevice() {
    close();
}

DirectSoundVoice* DirectSoundDevice::find(SoundBuffer buffer) {
    return const_cast<DirectSoundVoice*>(std::as_const(*this).find(buffer));
}

const DirectSoundVoice* DirectSoundDevice::find(SoundBuffer buffer) const {
    const auto found = voices_.find(buffer);
    return found != voices_.end() ? found->second.get() : nullptr;
}

SoundBuffer DirectSoundDevice::add(std::unique_ptr<DirectSoundVoice> voice) {
    const auto buffer = static_cast<SoundBuffer>(++last_);
    voices_.emplace(buffer, std::move(voice));
    return buffer;
}

bool DirectSoundDevice::open() {
    if (sound_ != nullptr) return true;
    if (FAILED(DirectSoundCreate(nullptr, &sound_, nullptr))) {
        sound_ = nullptr;
        return true;
    }
    void* own = window_ ? window_() : nullptr;
    sound_->SetCooperativeLevel(own != nullptr ? static_cast<HWND>(own) : GetDesktopWindow(), DSSCL_PRIORITY);
    return true;
}

void DirectSoundDevice::close() {
    voices_.clear();
    PlaySoundW(nullptr, nullptr, 0);
    once_.clear();
    if (sound_ != nullptr) std::exchange(sound_, nullptr)->Release();
}

SoundBuffer DirectSoundDevice::load(const std::string& path) {
    const auto file = files::readAll(path);
    if (!file) return SoundBuffer::None;
    const auto wave = readWave(*file);
    return wave ? add(std::make_unique<DirectSoundVoice>(sound_, *wave)) : SoundBuffer::None;
}

SoundBuffer DirectSoundDevice::duplicate(SoundBuffer buffer) {
    const DirectSoundVoice* voice = find(buffer);
    return voice != nullptr ? add(std::make_unique<DirectSoundVoice>(sound_, *voice)) : SoundBuffer::None;
}

void DirectSoundDevice::release(SoundBuffer buffer) {
    voices_.erase(buffer);
}

void DirectSoundDevice::play(SoundBuffer buffer, bool loop) {
    if (DirectSoundVoice* voice = find(buffer); voice != nullptr) voice->play(loop);
}

void DirectSoundDevice::stop(SoundBuffer buffer) {
    if (DirectSoundVoice* voice = find(buffer); voice != nullptr) voice->stop();
}

void DirectSoundDevice::setVolume(SoundBuffer buffer, std::int32_t volume) {
    if (DirectSoundVoice* voice = find(buffer); voice != nullptr) voice->setVolume(volume);
}

void DirectSoundDevice::setPan(SoundBuffer buffer, std::int32_t pan) {
    if (DirectSoundVoice* voice = find(buffer); voice != nullptr) voice->setPan(pan);
}

void DirectSoundDevice::setFrequency(SoundBuffer buffer, std::int32_t frequency) {
    if (DirectSoundVoice* voice = find(buffer); voice != nullptr) voice->setFrequency(frequency);
}

std::optional<std::int32_t> DirectSoundDevice::volume(SoundBuffer buffer) const {
    const DirectSoundVoice* voice = find(buffer);
    return voice != nullptr ? std::optional(voice->settings().volume) : std::nullopt;
}

std::optional<std::int32_t> DirectSoundDevice::pan(SoundBuffer buffer) const {
    const DirectSoundVoice* voice = find(buffer);
    return voice != nullptr ? std::optional(voice->settings().pan) : std::nullopt;
}

std::optional<std::int32_t> DirectSoundDevice::frequency(SoundBuffer buffer) const {
    const DirectSoundVoice* voice = find(buffer);
    return voice != nullptr ? std::optional(voice->settings().frequency) : std::nullopt;
}

void DirectSoundDevice::setSpeakers(std::int32_t value) {
    speakers_ = value;
    if (sound_ != nullptr) sound_->SetSpeakerConfig(static_cast<DWORD>(value));
}

/// The system mixes it itself. It takes no file from a deep folder, so it gets what stands in it; a file that
/// it cannot play is silence, no beep.
void DirectSoundDevice::playOnce(const std::string& path) {
    auto file = files::readAll(path);
    PlaySoundW(nullptr, nullptr, 0); // lets go of the one before
    once_ = file ? wholeForm(std::move(*file)) : Bytes();
    if (once_.empty()) return;
    PlaySoundW(reinterpret_cast<const wchar_t*>(once_.data()), nullptr,
               SND_MEMORY | SND_ASYNC | SND_NODEFAULT);
}

std::unique_ptr<SoundDevice> makeDirectSoundDevice(DirectSoundDevice::Window window) {
    return std::make_unique<DirectSoundDevice>(std::move(window));
}

} // namespace gatewise

#endif
