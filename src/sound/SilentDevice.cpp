#include "sound/SilentDevice.h"

#include "platform/Files.h"
#include "sound/WaveFile.h"

namespace gatewise {

bool SilentDevice::open() {
    return true;
}

void SilentDevice::close() {
    settings_.clear();
}

SoundSettings* SilentDevice::find(SoundBuffer buffer) {
    const auto found = settings_.find(buffer);
    return found != settings_.end() ? &found->second : nullptr;
}

const SoundSettings* SilentDevice::find(SoundBuffer buffer) const {
    const auto found = settings_.find(buffer);
    return found != settings_.end() ? &found->second : nullptr;
}

SoundBuffer SilentDevice::add(const SoundSettings& settings) {
    const auto buffer = static_cast<SoundBuffer>(++last_);
    settings_.emplace(buffer, settings);
    return buffer;
}

SoundBuffer SilentDevice::load(const std::string& path) {
    const auto file = files::readAll(path);
    if (!file) return SoundBuffer::None;
    const auto sound = readWave(*file);
    if (!sound) return SoundBuffer::None;
    return add({.frequency = sound->rate});
}

SoundBuffer SilentDevice::duplicate(SoundBuffer buffer) {
    const SoundSettings* settings = find(buffer);
    return settings != nullptr ? add(SoundSettings(*settings)) : SoundBuffer::None;
}

void SilentDevice::release(SoundBuffer buffer) {
    settings_.erase(buffer);
}

void SilentDevice::play(SoundBuffer, bool) {}

void SilentDevice::stop(SoundBuffer) {}

void SilentDevice::setVolume(SoundBuffer buffer, std::int32_t volume) {
    if (SoundSettings* settings = find(buffer); settings != nullptr) settings->setVolume(volume);
}

void SilentDevice::setPan(SoundBuffer buffer, std::int32_t pan) {
    if (SoundSettings* settings = find(buffer); settings != nullptr) settings->setPan(pan);
}

void SilentDevice::setFrequency(SoundBuffer buffer, std::int32_t frequency) {
    if (SoundSettings* settings = find(buffer); settings != nullptr) settings->setFrequency(frequency);
}

std::optional<std::int32_t> SilentDevice::volume(SoundBuffer buffer) const {
    const SoundSettings* settings = find(buffer);
    return settings != nullptr ? std::optional(settings->volume) : std::nullopt;
}

std::optional<std::int32_t> SilentDevice::pan(SoundBuffer buffer) const {
    const SoundSettings* settings = find(buffer);
    return settings != nullptr ? std::optional(settings->pan) : std::nullopt;
}

std::optional<std::int32_t> SilentDevice::frequency(SoundBuffer buffer) const {
    const SoundSettings* settings = find(buffer);
    return settings != nullptr ? std::optional(settings->frequency) : std::nullopt;
}

} // namespace gatewise
