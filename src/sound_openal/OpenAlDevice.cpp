#include "sound_openal/OpenAlDevice.h"

#include "platform/Files.h"

#include <algorithm>
#include <utility>

namespace gatewise {

namespace {

// Long enough for every loudspeaker that is there, too short to be felt at start-up.
constexpr std::chrono::milliseconds kPatience{400};

} // namespace

OpenAlDevice::OpenAlDevice(OpenAlRoad road)
    : now_(road.now), output_(std::move(road)),
      reader_([this](OpenAlReader::Sound sound, const OpenAlBuffers& buffers) {
          take(std::move(sound), buffers);
      }) {}

OpenAlDevice::~OpenAlDevice() {
    close();
}

OpenAlVoice* OpenAlDevice::find(SoundBuffer buffer) {
    const auto found = voices_.find(buffer);
    return found != voices_.end() ? &found->second : nullptr;
}

const OpenAlVoice* OpenAlDevice::find(SoundBuffer buffer) const {
    const auto found = voices_.find(buffer);
    return found != voices_.end() ? &found->second : nullptr;
}

SoundBuffer OpenAlDevice::add(OpenAlVoice voice) {
    catchUp();
    const auto buffer = static_cast<SoundBuffer>(++last_);
    OpenAlVoice& kept = voices_.emplace(buffer, std::move(voice)).first->second;
    if (output_.ready()) give(kept);
    return buffer;
}

void OpenAlDevice::catchUp() {
    if (!output_.takeOver()) return;
    rest_.watch(output_.device());
    for (auto& [buffer, voice] : voices_) {
        give(voice);
        comeIn(voice);
    }
    keepAwake();
}

void OpenAlDevice::give(OpenAlVoice& voice) {
    const OpenAlSound& sound = *voice.sound;
    if (sound.buffers[0] == 0 && !sound.path.empty())
        reader_.order(voice.sound);
    else
        attach(voice);
}

void OpenAlDevice::comeIn(OpenAlVoice& voice) {
    if (const auto frame = frameNow(voice, now_()))
        start(voice, *frame);
    else
        stopSources(voice);
}

void OpenAlDevice::start(OpenAlVoice& voice, std::int64_t frame) {
    voice.rests = rest_.resting() ? -1 : rest_.rests();
    startSources(voice, frame);
}

void OpenAlDevice::take(OpenAlReader::Sound sound, const OpenAlBuffers& buffers) {
    const std::lock_guard lock(guard_);
    const OpenAlReader::Sound read = std::move(sound); // let go of behind the guard
    if (buffers[0] == 0) return;
    for (auto& [buffer, voice] : voices_) {
        if (voice.sound != read) continue;
        read->buffers = buffers;
        attach(voice);
        comeIn(voice);
    }
    // Its voices have been released meanwhile.
    if (read->buffers[0] == 0) alDeleteBuffers(2, buffers.data());
}

void OpenAlDevice::keepAwake() {
    OpenAlRest::Time end = OpenAlRest::Time::min();
    for (const auto& [buffer, voice] : voices_) end = std::max(end, endOf(voice));
    rest_.playUntil(end);
}

void OpenAlDevice::dropOutput() {
    reader_.stop();
    const std::lock_guard lock(guard_);
    rest_.release();
    if (output_.ready()) {
        for (auto& [buffer, voice] : voices_) stopSources(voice);
        for (auto& [buffer, voice] : voices_) {
            if (voice.sources[0] != 0) alDeleteSources(2, voice.sources.data());
            voice.sources = {};
        }
        for (auto& [buffer, voice] : voices_) {
            if (voice.sound->buffers[0] != 0) alDeleteBuffers(2, voice.sound->buffers.data());
            voice.sound->buffers = {};
            voice.sound->ordered = false;
        }
    }
    output_.close();
}

bool OpenAlDevice::open() {
    if (output_.lost()) dropOutput();
    output_.begin();
    if (!std::exchange(waited_, true)) output_.settle(kPatience);
    const std::lock_guard lock(guard_);
    catchUp();
    return true;
}

void OpenAlDevice::close() {
    dropOutput();
    voices_.clear();
    click_ = SoundBuffer::None;
}

SoundBuffer OpenAlDevice::load(const std::string& path) {
    OpenAlVoice voice;
    voice.sound = openSound(path);
    if (voice.sound == nullptr) return SoundBuffer::None;
    voice.settings.frequency = voice.sound->wave.rate;
    const std::lock_guard lock(guard_);
    return add(std::move(voice));
}

SoundBuffer OpenAlDevice::duplicate(SoundBuffer buffer) {
    const std::lock_guard lock(guard_);
    const OpenAlVoice* voice = find(buffer);
    if (voice == nullptr) return SoundBuffer::None;
    OpenAlVoice copy = *voice;
    copy.playing = false;
    copy.sources = {};
    return add(std::move(copy));
}

void OpenAlDevice::release(SoundBuffer buffer) {
    const std::lock_guard lock(guard_);
    catchUp();
    if (OpenAlVoice* voice = find(buffer); voice != nullptr) {
        if (output_.ready()) detach(*voice);
        voices_.erase(buffer);
        keepAwake();
    }
}

void OpenAlDevice::play(SoundBuffer buffer, bool loop) {
    const std::lock_guard lock(guard_);
    catchUp();
    OpenAlVoice* voice = find(buffer);
    if (voice == nullptr) return;
    voice->playing = true;
    voice->loop = loop;
    voice->started = now_();
    keepAwake();
    start(*voice, 0);
}

void OpenAlDevice::stop(SoundBuffer buffer) {
    const std::lock_guard lock(guard_);
    catchUp();
    OpenAlVoice* voice = find(buffer);
    if (voice == nullptr) return;
    voice->playing = false;
    stopSources(*voice);
    keepAwake();
}

void OpenAlDevice::setVolume(SoundBuffer buffer, std::int32_t volume) {
    const std::lock_guard lock(guard_);
    catchUp();
    OpenAlVoice* voice = find(buffer);
    if (voice == nullptr) return;
    const bool before = heard(*voice);
    if (!voice->settings.setVolume(volume)) return;
    applySettings(*voice);
    if (heard(*voice) == before) return;
    keepAwake();
    const bool heldUp = voice->playing && voice->rests != rest_.rests(); // by a rest while nobody heard it
    if (!before && heldUp) comeIn(*voice);
}

void OpenAlDevice::setPan(SoundBuffer buffer, std::int32_t pan) {
    const std::lock_guard lock(guard_);
    catchUp();
    OpenAlVoice* voice = find(buffer);
    if (voice != nullptr && voice->settings.setPan(pan)) applySettings(*voice);
}

void OpenAlDevice::setFrequency(SoundBuffer buffer, std::int32_t frequency) {
    const std::lock_guard lock(guard_);
    catchUp();
    OpenAlVoice* voice = find(buffer);
    if (voice == nullptr) return;
    const auto now = now_();
    const auto frame = frameNow(*voice, now);
    if (!voice->settings.setFrequency(frequency)) return;
    if (frame) voice->started = startOf(*voice, *frame, now);
    applySettings(*voice);
    keepAwake();
}

std::optional<std::int32_t> OpenAlDevice::volume(SoundBuffer buffer) const {
    const OpenAlVoice* voice = find(buffer);
    return voice != nullptr ? std::optional(voice->settings.volume) : std::nullopt;
}

std::optional<std::int32_t> OpenAlDevice::pan(SoundBuffer buffer) const {
    const OpenAlVoice* voice = find(buffer);
    return voice != nullptr ? std::optional(voice->settings.pan) : std::nullopt;
}

std::optional<std::int32_t> OpenAlDevice::frequency(SoundBuffer buffer) const {
    const OpenAlVoice* voice = find(buffer);
    return voice != nullptr ? std::optional(voice->settings.frequency) : std::nullopt;
}

void OpenAlDevice::playOnce(const std::string& path) {
    open();
    // The same click is heard at every button: its file is read again when it has changed.
    const files::Stamp stamp = files::stampOf(files::resolve(path));
    if (click_ == SoundBuffer::None || path != clickPath_ || stamp != clickStamp_) {
        release(std::exchange(click_, SoundBuffer::None));
        click_ = load(path);
        clickPath_ = path;
        clickStamp_ = stamp;
    }
    play(click_, false);
}

std::unique_ptr<SoundDevice> makeOpenAlDevice() {
    return std::make_unique<OpenAlDevice>();
}

} // namespace gatewise
