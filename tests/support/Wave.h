#pragma once

#include "platform/Binary.h"

#include <cstdint>

namespace gatewise::test {

/// A wave file with the common 44-byte header around `data`.
inline Bytes waveOf(const Bytes& data, std::uint16_t channels = 1, std::uint32_t rate = 8000,
                    std::uint16_t bits = 8) {
    Bytes file;
    appendText(file, "RIFF");
    appendField(file, static_cast<std::uint32_t>(data.size() + 36));
    appendText(file, "WAVEfmt ");
    appendField(file, std::uint32_t{16});
    appendField(file, std::uint16_t{1}); // samples as they are
    appendField(file, channels);
    appendField(file, rate);
    appendField(file, rate * channels * bits / 8U);
    appendField(file, static_cast<std::uint16_t>(channels * bits / 8U));
    appendField(file, bits);
    appendText(file, "data");
    appendField(file, static_cast<std::uint32_t>(data.size()));
    file.insert(file.end(), data.begin(), data.end());
    return file;
}

} // namespace gatewise::test
