#include "hall.h"

#include <array>
#include <cmath>

namespace synth {

namespace {

constexpr double kDirect = 0.6;
constexpr double kReflected = 0.9;
constexpr double kDecaySeconds = 2.2; // to -60 dB
constexpr double kDampingHertz = 2600.0;
constexpr double kFloorHertz = 70.0; // a hall does not carry what lies below

// Prime lengths in samples, 45 to 86 ms, so that the echoes of the lines do not fall together.
using Lengths = std::array<std::size_t, 4>;
constexpr Lengths kLeftLengths{1979, 2477, 3109, 3733};
constexpr Lengths kRightLengths{2039, 2551, 3001, 3671};

// A delay line that gives back what went in a fixed number of samples ago.
class Line {
public:
    explicit Line(std::size_t length)
        : held_(length, 0.0), damping_(kDampingHertz, kHallRate),
          feedback_(std::pow(10.0, -3.0 * static_cast<double>(length) / (kDecaySeconds * kHallRate))) {}

    double out() { return damping_.next(held_[at_]) * feedback_; }
    void in(double sample) {
        held_[at_] = sample;
        at_ = (at_ + 1) % held_.size();
    }

private:
    Samples held_;
    LowPass damping_;
    double feedback_;
    std::size_t at_ = 0;
};

} // namespace

Samples in_hall(const Samples& dry, Ear ear) {
    const Lengths& lengths = ear == Ear::Left ? kLeftLengths : kRightLengths;
    std::array<Line, 4> lines{Line(lengths[0]), Line(lengths[1]), Line(lengths[2]), Line(lengths[3])};
    LowPass floor(kFloorHertz, kHallRate);
    Samples wet(dry.size());
    // The first round fills the hall with the loop's end, the second is the one that is kept.
    for (int round = 0; round < 2; ++round) {
        for (std::size_t at = 0; at < dry.size(); ++at) {
            std::array<double, 4> out{};
            double sum = 0.0;
            for (std::size_t line = 0; line < lines.size(); ++line) sum += out[line] = lines[line].out();
            // Householder mixing: each line feeds all others and no energy is gained.
            for (std::size_t line = 0; line < lines.size(); ++line)
                lines[line].in(dry[at] + out[line] - 0.5 * sum);
            const double heard = kDirect * dry[at] + kReflected * 0.25 * sum;
            wet[at] = heard - floor.next(heard);
        }
    }
    return wet;
}

} // namespace synth
