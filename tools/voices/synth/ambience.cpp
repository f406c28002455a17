#include "ambience.h"

#include "crowd.h"
#include "hall.h"
#include "stereo.h"

#include <cmath>

namespace synth {

namespace {

constexpr double kLoopSeconds = 120.0;
constexpr double kCeiling = 0.16; // nothing in the background may startle

// Root mean square of each layer; -30 dB together.
constexpr double kAirLevel = 0.0085;
constexpr double kMurmurLevel = 0.0240;
constexpr double kStepsLevel = 0.0100;
constexpr double kTrolleysLevel = 0.0110;
constexpr double kChimesLevel = 0.0030;

constexpr int kTalkers = 26;
constexpr int kWalkers = 24;
constexpr int kTrolleys = 9;
constexpr int kChimes = 6;

// Ventilation in one ear: low noise that breathes slowly. A filter's first round over the loop only settles
// its state.
Samples air(std::size_t length, Random& random) {
    Samples noise(length);
    for (double& sample : noise) sample = random.noise();
    Samples loop(length, 0.0);
    LowPass rumble(140.0, kHallRate);
    LowPass breath(600.0, kHallRate);
    const double turn = 2.0 * kPi / static_cast<double>(length);
    for (int round = 0; round < 2; ++round) {
        for (std::size_t at = 0; at < length; ++at) {
            const double low = rumble.next(noise[at]);
            const double high = breath.next(noise[at]);
            const double drift = 1.0 + 0.25 * std::sin(3.0 * turn * static_cast<double>(at));
            if (round == 1) loop[at] = low * drift + 0.25 * high;
        }
    }
    return loop;
}

// So many of a kind, spread evenly over the loop, so that no part of it is empty or crowded.
template<typename Add> Hall spread(std::size_t length, int count, double freedom, Random& random, Add add) {
    Hall dry = silence(length);
    for (int number = 0; number < count; ++number)
        add(dry, (number + random.between(0.0, freedom)) * kLoopSeconds / count, random);
    return dry;
}

Hall heard_across(const Hall& dry) {
    return {in_hall(dry.left, Ear::Left), in_hall(dry.right, Ear::Right)};
}

} // namespace

Hall make_ambience() {
    Random random(2002);
    const std::size_t length = samples_in(kLoopSeconds, kHallRate);
    Hall murmur = silence(length);
    for (int talker = 0; talker < kTalkers; ++talker) add_talker(murmur, kLoopSeconds, random);

    Hall loop = silence(length);
    add_layer(loop, {air(length, random), air(length, random)}, kAirLevel);
    add_layer(loop, heard_across(murmur), kMurmurLevel);
    add_layer(loop, heard_across(spread(length, kWalkers, 0.8, random, add_walker)), kStepsLevel);
    add_layer(loop, heard_across(spread(length, kTrolleys, 0.6, random, add_trolley)), kTrolleysLevel);
    add_layer(loop, heard_across(spread(length, kChimes, 0.7, random, add_gate_chime)), kChimesLevel);
    for (Samples* ear : {&loop.left, &loop.right}) {
        for (double& sample : *ear) sample = kCeiling * std::tanh(sample / kCeiling);
    }
    return loop;
}

} // namespace synth
