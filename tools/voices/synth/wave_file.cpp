#include "wave_file.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <string>

namespace synth {

namespace {

// The rounding error is shaped to lie low in the spectrum, under the sound itself and away from the ear's
// best octave between 2 and 4 kHz, where plain eight-bit dither is heard as hiss.
constexpr double kShaping = 0.7;
constexpr double kFadeSeconds = 0.25;

void append_little_endian(std::string& bytes, std::uint32_t value, int width) {
    for (int index = 0; index < width; ++index) bytes += static_cast<char>((value >> (8 * index)) & 0xFF);
}

std::string wave_header(std::uint32_t size) {
    std::string bytes = "RIFF";
    append_little_endian(bytes, size + 36, 4);
    bytes += "WAVEfmt ";
    append_little_endian(bytes, 16, 4);
    append_little_endian(bytes, 1, 2);
    append_little_endian(bytes, 1, 2);
    append_little_endian(bytes, kSampleRate, 4);
    append_little_endian(bytes, kSampleRate, 4);
    append_little_endian(bytes, 1, 2);
    append_little_endian(bytes, 8, 2);
    bytes += "data";
    append_little_endian(bytes, size, 4);
    return bytes;
}

// Share of the dither at a sample, 0 to 1.
double dither_share(std::size_t at, std::size_t count, Dither dither) {
    if (dither == Dither::Steady) return 1.0;
    return std::min(1.0, static_cast<double>(count - 1 - at) / (kFadeSeconds * kSampleRate));
}

std::string quantised(const Samples& samples, Dither dither) {
    Random random(8);
    std::string bytes;
    bytes.reserve(samples.size());
    double error = 0.0;
    for (std::size_t at = 0; at < samples.size(); ++at) {
        const double share = dither_share(at, samples.size(), dither);
        const double wanted = samples[at] * 127.0 + kShaping * share * error;
        const double dithered = wanted + share * 0.5 * (random.noise() + random.noise());
        const double level = std::clamp(std::round(dithered), -127.0, 127.0);
        error = level - wanted;
        bytes += static_cast<char>(static_cast<unsigned char>(128 + static_cast<int>(level)));
    }
    return bytes;
}

} // namespace

bool write_wave(const std::filesystem::path& path, const Samples& samples, Dither dither) {
    std::filesystem::path fresh = path;
    fresh += ".new";
    {
        std::ofstream file(fresh, std::ios::binary | std::ios::trunc);
        file << wave_header(static_cast<std::uint32_t>(samples.size())) << quantised(samples, dither);
        file.close();
        if (!file) return false;
    }
    std::error_code failure;
    std::filesystem::rename(fresh, path, failure);
    return !failure;
}

} // namespace synth
