#pragma once

#include "platform/Binary.h"

#include <cstddef>
#include <cstdint>
#include <optional>

namespace gatewise {

/// How the sound of a wave file is told: linear samples.
struct WaveForm {
    std::uint16_t channels = 1; // 1, 2 (left and right in turns)
    std::uint16_t bits = 8;     // 8 unsigned, 16 signed little-endian
    std::int32_t rate = 8000;   // samples a second

    [[nodiscard]] std::size_t frameSize() const { return std::size_t{channels} * bits / 8; } // bytes
    friend bool operator==(const WaveForm&, const WaveForm&) = default;
};

/// The sound of a wave file: samples as the file holds them.
struct WaveSound : WaveForm {
    Bytes samples; // whole frames, at least one
};

/// Where a wave file holds its samples: bytes from its begin, whole frames, at least one.
struct WaveHead : WaveForm {
    std::uint64_t start = 0, size = 0;
};

/// Reads what stands before the samples of a file of `length` bytes, which begins with `beginning`. Nothing
/// when the samples begin behind that, and when readWave finds none.
std::optional<WaveHead> readWaveHead(ByteView beginning, std::uint64_t length);

/// Reads a wave file of uncompressed samples. A data block that claims more than the file holds ends with the
/// file. Nothing when it is no such file or holds no sound.
std::optional<WaveSound> readWave(ByteView file);

} // namespace gatewise
