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

struct Format {
    std::uint32_t rate;
    std::uint32_t channels;
    std::uint32_t bits;
};

std::string wave_header(const Format& format, std::uint32_t size) {
    const std::uint32_t frame = format.channels * format.bits / 8;
    std::string bytes = "RIFF";
    append_little_endian(bytes, size + 36, 4);
    bytes += "WAVEfmt ";
    append_little_endian(bytes, 16, 4);
    append_little_endian(bytes, 1, 2);
    append_little_endian(bytes, format.channels, 2);
    append_little_endian(bytes, format.rate, 4);
    append_little_endian(bytes, format.rate * frame, 4);
    append_little_endian(bytes, frame, 2);
    append_little_endian(bytes, format.bits, 2);
    bytes += "data";
    append_little_endian(bytes, size, 4);
    return bytes;
}

// Share of the dither at a sample, 0 to 1: it follows the sound into silence.
double dither_share(std::size_t at, std::size_t count) {
    return std::min(1.0, static_cast<double>(count - 1 - at) / (kFadeSeconds * kSpeechRate));
}

std::string in_eight_bits(const Samples& samples) {
    Random random(8);
    std::string bytes;
    bytes.reserve(samples.size());
    double error = 0.0;
    for (std::size_t at = 0; at < samples.size(); ++at) {
        const double share = dither_share(at, samples.size());
        const double wanted = samples[at] * 127.0 + kShaping * share * error;
        const double dithered = wanted + share * 0.5 * (random.noise() + random.noise());
        const double level = std::clamp(std::round(dithered), -127.0, 127.0);
        error = level - wanted;
        bytes += static_cast<char>(static_cast<unsigned char>(128 + static_cast<int>(level)));
    }
    return bytes;
}

// The dither is the same everywhere, so that a loop's seam cannot be heard.
std::string in_sixteen_bits(const Samples& left, const Samples& right) {
    Random random(16);
    std::string bytes;
    bytes.reserve(4 * left.size());
    for (std::size_t at = 0; at < left.size(); ++at) {
        for (const double sample : {left[at], right[at]}) {
            const double dithered = sample * 32767.0 + 0.5 * (random.noise() + random.noise());
            const auto level = static_cast<int>(std::clamp(std::round(dithered), -32767.0, 32767.0));
            append_little_endian(bytes, static_cast<std::uint32_t>(level), 2);
        }
    }
    return bytes;
}

bool replace(const std::filesystem::path& path, const Format& format, const std::string& samples) {
    std::filesystem::path fresh = path;
    fresh += ".new";
    {
        std::ofstream file(fresh, std::ios::binary | std::ios::trunc);
        file << wave_header(format, static_cast<std::uint32_t>(samples.size())) << samples;
        file.close();
        if (!file) return false;
    }
    std::error_code failure;
    std::filesystem::rename(fresh, path, failure);
    return !failure;
}

} // namespace

bool write_speech_wave(const std::filesystem::path& path, const Samples& samples) {
    return replace(path, {kSpeechRate, 1, 8}, in_eight_bits(samples));
}

bool write_hall_wave(const std::filesystem::path& path, const Samples& left, const Samples& right) {
    return replace(path, {kHallRate, 2, 16}, in_sixteen_bits(left, right));
}

} // namespace synth
