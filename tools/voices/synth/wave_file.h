// Wave files of two kinds: eight-bit mono, as the announcement joiner and the sound engine expect them, and
// the hall's sixteen-bit stereo.
#pragma once

#include "signal.h"

#include <filesystem>

namespace synth {

// Writes a sound that ends as 8-bit unsigned mono at kSpeechRate behind a 44-byte header and nothing else,
// replacing the file in one step. The number of samples has to be even. False when it cannot be written.
bool write_speech_wave(const std::filesystem::path& path, const Samples& samples);

// Writes a loop of two ears, each as long as the other, as 16-bit stereo at kHallRate in the same way.
bool write_hall_wave(const std::filesystem::path& path, const Samples& left, const Samples& right);

} // namespace synth
