// Building blocks of the synthesised sounds. Samples are doubles, full scale -1 to 1.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace synth {

// Samples a second: of what the public address plays, and of the hall around it.
inline constexpr int kSpeechRate = 8000;
inline constexpr int kHallRate = 44100;
inline constexpr double kPi = 3.14159265358979323846;

using Samples = std::vector<double>;

// Reproducible on every platform, unlike the standard library's distributions: the same seed gives the same
// file.
class Random {
public:
    explicit Random(std::uint64_t seed) : state_(seed) {}

    // Even draw, from 0 up to but not including 1.
    double unit();
    // Even draw from low to high.
    double between(double low, double high) { return low + (high - low) * unit(); }
    // Even draw from -1 to 1: one sample of white noise.
    double noise() { return between(-1.0, 1.0); }

private:
    std::uint64_t state_;
};

// Two-pole resonator: a band around a frequency, unit gain at its centre.
class Resonator {
public:
    // All in hertz; the frequency below half the sample rate, the bandwidth above zero.
    Resonator(double frequency, double bandwidth, int rate);
    double next(double input);

private:
    double gain_;
    double a1_;
    double a2_;
    double y1_ = 0.0;
    double y2_ = 0.0;
};

// One-pole low-pass.
class LowPass {
public:
    LowPass(double cutoff, int rate); // hertz
    double next(double input) { return state_ += factor_ * (input - state_); }

private:
    double factor_;
    double state_ = 0.0;
};

// A loop is a buffer whose end meets its start: what runs over the end goes on at the start.
inline double& wrapped(Samples& loop, std::size_t at) {
    return loop[at % loop.size()];
}

// Number of samples in a time in seconds.
inline std::size_t samples_in(double seconds, int rate) {
    return static_cast<std::size_t>(seconds * rate);
}

double root_mean_square(const Samples& samples);

} // namespace synth
