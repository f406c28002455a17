#include "signal.h"

#include <cmath>

namespace synth {

double Random::unit() {
    // splitmix64
    state_ += 0x9E3779B97F4A7C15ULL;
    std::uint64_t z = state_;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9ULL;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBULL;
    z ^= z >> 31;
    return static_cast<double>(z >> 11) * (1.0 / 9007199254740992.0);
}

Resonator::Resonator(double frequency, double bandwidth, int rate) {
    const double radius = std::exp(-kPi * bandwidth / rate);
    const double angle = 2.0 * kPi * frequency / rate;
    a1_ = 2.0 * radius * std::cos(angle);
    a2_ = -radius * radius;
    gain_ = (1.0 - radius) * std::sqrt(1.0 - 2.0 * radius * std::cos(2.0 * angle) + radius * radius);
}

double Resonator::next(double input) {
    const double y = gain_ * input + a1_ * y1_ + a2_ * y2_;
    y2_ = y1_;
    y1_ = y;
    return y;
}

LowPass::LowPass(double cutoff, int rate) : factor_(1.0 - std::exp(-2.0 * kPi * cutoff / rate)) {}

double root_mean_square(const Samples& samples) {
    double sum = 0.0;
    for (const double sample : samples) sum += sample * sample;
    return samples.empty() ? 0.0 : std::sqrt(sum / static_cast<double>(samples.size()));
}

} // namespace synth
