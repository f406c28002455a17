#pragma once

#include "platform/Binary.h"

#include <cstdint>
#include <optional>

namespace gatewise {

/// The sound of a wave file: linear samples as the file holds them.
struct WaveSound {
    std::uint16_t channels = 1; // 1, 2 (left and right in turns)
    std::uint16_t bits = 8;     // 8 unsigned, 16 signed little-endian
    std::int32_t rate = 8000;   // samples a second
    Bytes samples;              // whole frames, at least one
};

/// Reads a wave file of uncompressed samples. A data block that claims more than the file holds ends with the
/// file. Nothing when it is no such file or holds no sound.
std::optional<WaveSound> readWave(ByteView file);

} // namespace gatewise
