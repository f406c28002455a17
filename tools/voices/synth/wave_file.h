// Eight-bit mono wave files, as the announcement joiner and the sound engine expect them.
#pragma once

#include "signal.h"

#include <filesystem>

namespace synth {

enum class Dither {
    Fading, // for a sound that ends: the dither follows the sound into silence
    Steady, // for a loop: the same everywhere, so that the seam cannot be heard
};

// Writes samples as 8-bit unsigned PCM behind a 44-byte header and nothing else, replacing the file in one
// step. The number of samples has to be even. Returns false when the file cannot be written.
bool write_wave(const std::filesystem::path& path, const Samples& samples, Dither dither);

} // namespace synth
