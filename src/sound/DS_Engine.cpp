#include "sound/DS_Engine.h"

#include "platform/Text.h"

#include <algorithm>
#include <span>
#include <utility>

namespace gatewise {

namespace {

constexpr std::int32_t kDefaultEchoDelay = 50;

struct ReadableVolume {
    std::int32_t atLeast;
    const char* text;
};
// Tested from the top: the first row takes every volume of the range.
constexpr ReadableVolume kReadableVolumes[] = {
    {-10000, "0"}, {-3000, "1"}, {-2000, "2"}, {-1750, "3"}, {-1500, "4"},
    {-1250, "5"},  {-1000, "6"}, {-750, "7"},  {-500, "8"},  {-250, "9"},
};

struct SpeakerSetUp {
    std::int32_t value;
    const char* name;
    const char* text;
};
constexpr SpeakerSetUp kSpeakerSetUps[] = {
    {1, "headphone", "Speakers are set to: [Headphone]"}, {4, "stereo", "Speakers are set to: [Stereo]"},
    {2, "mono", "Speakers are set to: [Mono]"},           {5, "surround", "Speakers are set to: [Surround]"},
    {3, "quad", "Speakers are set to: [Quadraphonic]"},
};

std::span<const SoundArgument> spanOf(const std::initializer_list<SoundArgument>& list) {
    return {list.begin(), list.size()};
}

} // namespace

void PlaySoundA(SoundDevice& device, const std::string& path) {
    if (device.log != nullptr) {
        const SoundArgument argument = path;
        device.log->operation("PlaySoundA", {&argument, 1});
    }
    device.playOnce(path);
}

void DS_Engine::report(const char* name, std::initializer_list<SoundArgument> arguments) const {
    if (device_.log != nullptr) device_.log->operation(name, spanOf(arguments));
}

DS_Engine::Channel* DS_Engine::channelAt(std::int16_t channel) {
    if (channel < 1 || channel > kChannels) return nullptr;
    return &channels_[static_cast<std::size_t>(channel - 1)];
}

SoundBuffer DS_Engine::loadedBuffer(std::int16_t channel) {
    const Channel* found = channelAt(channel);
    return found != nullptr && found->loaded ? found->buffer : SoundBuffer::None;
}

void DS_Engine::dropBuffer(SoundBuffer& buffer) {
    const SoundBuffer old = std::exchange(buffer, SoundBuffer::None);
    if (old != SoundBuffer::None) device_.release(old);
}

void DS_Engine::releaseAll() {
    for (Channel& channel : channels_) {
        dropBuffer(channel.buffer);
        channel.loaded = false;
        for (Sounding& echo : channel.echoes) dropBuffer(echo.buffer);
    }
    waves_.release();
}

void DS_Engine::LoadWavToChannel(std::int16_t channel, const std::string& path) {
    report("LoadWavToChannel", {channel, path});
    Channel* target = channelAt(channel);
    if (target == nullptr || !open_) return;
    const SoundBuffer made = waves_.load(path);
    if (made == SoundBuffer::None) return;
    dropBuffer(target->buffer);
    target->buffer = made;
    target->loaded = true;
    target->volume = 0;
    if (muted_) setLoudness(*target, 0);
}

void DS_Engine::SetFrequency(std::int16_t channel, std::int32_t hertz) {
    report("SetFrequency", {channel, hertz});
    if (const SoundBuffer buffer = loadedBuffer(channel); buffer != SoundBuffer::None)
        device_.setFrequency(buffer, hertz);
}

void DS_Engine::GetFrequency(std::int16_t channel, std::int32_t& hertz) {
    report("GetFrequency", {channel});
    hertz = device_.frequency(loadedBuffer(channel)).value_or(hertz);
}

void DS_Engine::SetVolume(std::int16_t channel, std::int32_t volume) {
    report("SetVolume", {channel, volume});
    if (Channel* target = channelAt(channel); loadedBuffer(channel) != SoundBuffer::None)
        setLoudness(*target, volume);
}

void DS_Engine::GetVolume(std::int16_t channel, std::int32_t& volume) {
    report("GetVolume", {channel});
    const SoundBuffer buffer = loadedBuffer(channel);
    volume = muted_ && buffer != SoundBuffer::None ? channelAt(channel)->volume
                                                   : device_.volume(buffer).value_or(volume);
}

void DS_Engine::SetPan(std::int16_t channel, std::int32_t pan) {
    report("SetPan", {channel, pan});
    if (const SoundBuffer buffer = loadedBuffer(channel); buffer != SoundBuffer::None)
        device_.setPan(buffer, pan);
}

void DS_Engine::GetPan(std::int16_t channel, std::int32_t& pan) {
    report("GetPan", {channel});
    pan = device_.pan(loadedBuffer(channel)).value_or(pan);
}

void DS_Engine::PlayDXSound(std::int16_t channel, bool loop) {
    report("PlayDXSound", {channel, loop});
    if (const SoundBuffer buffer = loadedBuffer(channel); buffer != SoundBuffer::None)
        device_.play(buffer, loop);
}

void DS_Engine::PlayEcho(std::int16_t channel, std::int16_t count, std::int32_t delay) {
    report("PlayEcho", {channel, count, delay});
    Channel* source = channelAt(channel);
    if (source == nullptr) return;
    if (delay == 0) delay = kDefaultEchoDelay;
    for (std::int16_t i = 1; i <= std::min(count, kEchoes); ++i) {
        // Asked each time: an event of the last wait may have cleared the channel.
        if (!source->loaded) return;
        const SoundBuffer echo = device_.duplicate(source->buffer);
        if (echo == SoundBuffer::None) return;
        Sounding& slot = source->echoes[static_cast<std::size_t>(i - 1)];
        dropBuffer(slot.buffer);
        slot = {echo, source->volume};
        device_.play(echo, false);
        if (delay > 0) loop_.wait(std::int64_t{i} * delay);
    }
}

void DS_Engine::StopDXSound(std::int16_t channel) {
    report("StopDXSound", {channel});
    if (const SoundBuffer buffer = loadedBuffer(channel); buffer != SoundBuffer::None) device_.stop(buffer);
}

void DS_Engine::ClearBuffer(std::int16_t channel) {
    report("ClearBuffer", {channel});
    Channel* target = channelAt(channel);
    if (target == nullptr || !target->loaded) return;
    dropBuffer(target->buffer);
    target->loaded = false;
}

void DS_Engine::Initialize_Engine() {
    report("Initialize_Engine", {});
    open_ = device_.open();
}

void DS_Engine::Terminate_Engine() {
    report("Terminate_Engine", {});
    releaseAll();
    open_ = false;
    device_.close();
}

void DS_Engine::GetReadableVolume(std::int32_t volume, std::string& text) {
    report("GetReadableVolume", {volume});
    text.clear();
    for (const ReadableVolume& row : kReadableVolumes) {
        if (volume >= row.atLeast) {
            text = row.text;
            return;
        }
    }
    if (volume == 0) text = "10";
}

void DS_Engine::GetSpeakerConfig(std::string& text) {
    report("GetSpeakerConfig", {});
    text.clear();
    for (const SpeakerSetUp& row : kSpeakerSetUps) {
        if (row.value == device_.speakers()) text = row.text;
    }
}

void DS_Engine::SetSpeakerConfig(const std::string& name) {
    report("SetSpeakerConfig", {name});
    const std::string wanted = lowerCase(name);
    const auto* row = std::ranges::find_if(kSpeakerSetUps, [&](const auto& r) { return wanted == r.name; });
    device_.setSpeakers(row != std::end(kSpeakerSetUps) ? row->value : kStereoSpeakers);
}

void DS_Engine::Pause(std::int32_t milliseconds) {
    report("Pause", {milliseconds});
    if (milliseconds > 0) loop_.wait(milliseconds);
}

void DS_Engine::setLoudness(Sounding& sounding, std::int32_t volume) {
    if (volume < kLowestVolume || volume > kHighestVolume) return;
    sounding.volume = volume;
    device_.setVolume(sounding.buffer, muted_ ? kLowestVolume : volume);
}

void DS_Engine::setMuted(bool muted) {
    if (muted == muted_) return;
    muted_ = muted;
    for (Channel& channel : channels_) {
        setLoudness(channel, channel.volume);
        // An echo goes on when its channel is cleared.
        for (Sounding& echo : channel.echoes) setLoudness(echo, echo.volume);
    }
}

void DS_Engine::ChangeVolume(std::int16_t channel, std::int16_t volume) {
    report("ChangeVolume", {channel, volume});
    if (Channel* target = channelAt(channel); target != nullptr) setLoudness(*target, volume);
}

} // namespace gatewise
