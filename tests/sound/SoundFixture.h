#pragma once

#include "platform/Machine.h"
#include "sound/Device.h"
#include "sound/SilentDevice.h"
#include "support/TempFolder.h"
#include "support/Wave.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

namespace gatewise::sound_test {

using Shorts = std::initializer_list<std::int16_t>;

using test::waveOf;

/// Writes down the waits and lets a test act in them.
class ScriptedLoop : public EventLoop {
public:
    void runModal(std::string_view, const std::function<bool()>&) override {}
    void wait(std::int64_t milliseconds) override {
        waits.push_back(milliseconds);
        if (inWait) inWait();
    }
    std::vector<std::int64_t> waits;
    std::function<void()> inWait;
};

/// Operations as lines: `SetVolume 8 -9000`.
class Listener : public SoundLog {
public:
    void operation(std::string_view name, std::span<const SoundArgument> arguments) override {
        std::string line(name);
        for (const SoundArgument& argument : arguments) {
            line += ' ';
            if (const auto* number = std::get_if<std::int32_t>(&argument)) line += std::to_string(*number);
            if (const auto* flag = std::get_if<bool>(&argument)) line += *flag ? "true" : "false";
            if (const auto* text = std::get_if<std::string>(&argument)) line += shortened(*text);
        }
        lines.push_back(line);
    }
    std::vector<std::string> lines;
    std::string folder; // left out of paths

private:
    [[nodiscard]] std::string shortened(const std::string& text) const {
        return !folder.empty() && text.starts_with(folder) ? text.substr(folder.size()) : text;
    }
};

/// A silent device that writes down what reaches it.
class WatchedDevice : public SilentDevice {
public:
    bool open() override {
        ++opened;
        return opens;
    }
    void close() override {
        ++closed;
        SilentDevice::close();
    }
    SoundBuffer duplicate(SoundBuffer buffer) override {
        const SoundBuffer made = SilentDevice::duplicate(buffer);
        if (made != SoundBuffer::None) ++duplicates;
        return made;
    }
    void play(SoundBuffer buffer, bool loop) override { played.emplace_back(buffer, loop); }
    void stop(SoundBuffer buffer) override { stopped.push_back(buffer); }
    void playOnce(const std::string& path) override { clicks.push_back(path); }

    bool opens = true;
    int opened = 0, closed = 0, duplicates = 0;
    std::vector<std::pair<SoundBuffer, bool>> played;
    std::vector<SoundBuffer> stopped;
    std::vector<std::string> clicks;
};

} // namespace gatewise::sound_test
