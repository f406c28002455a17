#pragma once

#include "platform/InFile.h"
#include "sound/Device.h"

#include <cstdint>
#include <string>

namespace gatewise {

/// Loads wave files and keeps the last long one: the hall's two minutes are read once, not at every turn to
/// the board, which would cost it a frame.
class LongWave {
public:
    /// Bytes; a shorter file is read at once.
    static constexpr std::int64_t kLong = 1 << 20;

    explicit LongWave(SoundDevice& device) : device_(device) {}

    /// A buffer of its own with the file's sound as the file is now, as SoundDevice::load gives it: None when
    /// there is no such sound.
    SoundBuffer load(const std::string& path);
    /// Lets go of what it keeps.
    void release();

private:
    SoundDevice& device_;
    SoundBuffer kept_ = SoundBuffer::None;
    std::string path_; // of what is kept, and its file as it was read
    files::Stamp stamp_;
};

} // namespace gatewise
