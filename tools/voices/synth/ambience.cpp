#include "ambience.h"

#include "crowd.h"
#include "hall.h"
#include "stereo.h"

#include <cmath>
#include <utility>

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
struct Kind {
    Passer who;
    int count;
    double freedom; // of each start, as a share of its part of the loop
    void (*add)(Hall& hall, double begin, Random& random);
};
constexpr Kind kWalking{Passer::Walker, 24, 0.8, add_walker};
constexpr Kind kRolling{Passer::Trolley, 9, 0.6, add_trolley};
constexpr Kind kCalling{Passer::Chime, 6, 0.7, add_gate_chime};

Hall spread(std::size_t length, const Kind& kind, Random& random, std::vector<Passage>* told) {
    Hall dry = silence(length);
    for (int number = 0; number < kind.count; ++number) {
        Passage passage{kind.who, {}};
        dry.told = told != nullptr ? &passage.sounds : nullptr;
        kind.add(dry, (number + random.between(0.0, kind.freedom)) * kLoopSeconds / kind.count, random);
        if (told != nullptr) told->push_back(std::move(passage));
    }
    dry.told = nullptr;
    return dry;
}

// What there is to hear, dry, each layer by itself.
struct Layers {
    Hall murmur, air, steps, trolleys, chimes;
};

Layers make_layers(std::vector<Passage>* told) {
    Random random(2002);
    const std::size_t length = samples_in(kLoopSeconds, kHallRate);
    Layers layers;
    layers.murmur = silence(length);
    for (int talker = 0; talker < kTalkers; ++talker) add_talker(layers.murmur, kLoopSeconds, random);
    layers.air.left = air(length, random);
    layers.air.right = air(length, random);
    layers.steps = spread(length, kWalking, random, told);
    layers.trolleys = spread(length, kRolling, random, told);
    layers.chimes = spread(length, kCalling, random, told);
    return layers;
}

Hall heard_across(const Hall& dry) {
    return {in_hall(dry.left, Ear::Left), in_hall(dry.right, Ear::Right), nullptr};
}

} // namespace

Hall make_ambience() {
    const Layers layers = make_layers(nullptr);
    Hall loop = silence(layers.air.left.size());
    add_layer(loop, layers.air, kAirLevel);
    add_layer(loop, heard_across(layers.murmur), kMurmurLevel);
    add_layer(loop, heard_across(layers.steps), kStepsLevel);
    add_layer(loop, heard_across(layers.trolleys), kTrolleysLevel);
    add_layer(loop, heard_across(layers.chimes), kChimesLevel);
    for (Samples* ear : {&loop.left, &loop.right}) {
        for (double& sample : *ear) sample = kCeiling * std::tanh(sample / kCeiling);
    }
    return loop;
}

std::vector<Passage> passages_of_ambience() {
    std::vector<Passage> told;
    make_layers(&told);
    return told;
}

} // namespace synth
