#pragma once

#include "drive/Json.h"
#include "sound/SilentDevice.h"

#include <utility>

namespace gatewise::drive {

/// Writes down every sound operation as a line of JSON. File names below the program folder lose its name.
class SoundRecorder : public SoundLog {
public:
    explicit SoundRecorder(const std::string& appDir) : appDir_(appDir) { device.log = this; }
    SoundRecorder(const SoundRecorder&) = delete;
    SoundRecorder& operator=(const SoundRecorder&) = delete;

    void operation(std::string_view name, std::span<const SoundArgument> arguments) override;

    /// All operations since the last call, oldest first.
    std::vector<std::string> take() { return std::exchange(operations_, {}); }

    SilentDevice device;

private:
    const std::string& appDir_;
    std::vector<std::string> operations_;
};

} // namespace gatewise::drive
