#include "tones.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace synth {

namespace {

struct Partial {
    double ratio;    // to the tone's fundamental
    double strength; // to the fundamental's
    double decay;    // seconds to 1/e
};

// A struck metal bar: the upper partials are weaker and die sooner.
constexpr std::array<Partial, 3> kBar{{{1.0, 1.0, 0.26}, {2.0, 0.22, 0.16}, {3.01, 0.10, 0.07}}};

struct Tone {
    double start; // seconds
    double hertz;
};

constexpr std::array<Tone, 3> kChime{{{0.02, 783.99}, {0.27, 659.26}, {0.52, 523.25}}};
constexpr double kChimeSeconds = 1.7;
constexpr double kChimePeak = 0.42;
constexpr double kAttackSeconds = 0.006;

constexpr double kClickSeconds = 0.06;
constexpr double kClickPeak = 0.38;
constexpr double kClickAttackSeconds = 0.001;

void add_tone(Samples& samples, const Tone& tone) {
    for (std::size_t at = samples_in(tone.start, kSpeechRate); at < samples.size(); ++at) {
        const double time = static_cast<double>(at) / kSpeechRate - tone.start;
        const double attack = std::min(1.0, time / kAttackSeconds);
        for (const Partial& partial : kBar) {
            samples[at] += attack * partial.strength * std::exp(-time / partial.decay) *
                           std::sin(2.0 * kPi * tone.hertz * partial.ratio * time);
        }
    }
}

// Brings the loudest sample to the peak and runs the end down to zero over the last fifth.
void finish(Samples& samples, double peak) {
    double loudest = 1e-9;
    for (const double sample : samples) loudest = std::max(loudest, std::abs(sample));
    const std::size_t tail = samples.size() / 5;
    for (std::size_t at = 0; at < samples.size(); ++at) {
        const double left = static_cast<double>(samples.size() - 1 - at) / static_cast<double>(tail);
        samples[at] *= peak / loudest * std::min(1.0, left);
    }
}

} // namespace

Samples make_chime() {
    Samples samples(samples_in(kChimeSeconds, kSpeechRate), 0.0);
    for (const Tone& tone : kChime) add_tone(samples, tone);
    finish(samples, kChimePeak);
    return samples;
}

Samples make_click() {
    Samples samples(samples_in(kClickSeconds, kSpeechRate), 0.0);
    Random random(3);
    Resonator body(420.0, 160.0, kSpeechRate);
    Resonator tip(1900.0, 500.0, kSpeechRate);
    for (std::size_t at = 0; at < samples.size(); ++at) {
        const double time = static_cast<double>(at) / kSpeechRate;
        const double attack = std::min(1.0, time / kClickAttackSeconds);
        const double strike = attack * random.noise() * std::exp(-time / 0.0022);
        samples[at] = 3.0 * body.next(strike) + 0.8 * tip.next(strike);
    }
    finish(samples, kClickPeak);
    return samples;
}

} // namespace synth
