#pragma once

#include "sound/Device.h"

#include <map>

namespace gatewise {

/// A device that only pretends: it checks wave files and keeps what it is told as a real one would, and plays
/// nothing. For machines without sound, the text driver and tests.
class SilentDevice : public SoundDevice {
public:
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
    void playOnce(const std::string&) override {}

    /// Buffers that exist.
    [[nodiscard]] std::size_t buffers() const { return settings_.size(); }

private:
    SoundSettings* find(SoundBuffer buffer);
    [[nodiscard]] const SoundSettings* find(SoundBuffer buffer) const;
    SoundBuffer add(const SoundSettings& settings);

    std::map<SoundBuffer, SoundSettings> settings_;
    std::uint32_t last_ = 0;
    std::int32_t speakers_ = 0;
};

} // namespace gatewise
