#include "ambience.h"

#include "hall.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace synth {

namespace {

constexpr double kLoopSeconds = 40.0;
constexpr double kCeiling = 0.16; // nothing in the background may startle

// Root mean square of each layer; -30 dB together.
constexpr double kAirLevel = 0.0085;
constexpr double kMurmurLevel = 0.0240;
constexpr double kStepsLevel = 0.0110;
constexpr double kCasesLevel = 0.0120;

struct Vowel {
    double first, second, third; // formants in hertz
};

constexpr std::array<Vowel, 8> kVowels{{{730, 1090, 2440},
                                        {530, 1840, 2480},
                                        {390, 1990, 2550},
                                        {270, 2290, 3010},
                                        {570, 840, 2410},
                                        {440, 1020, 2240},
                                        {300, 870, 2240},
                                        {640, 1190, 2390}}};

// Rises and falls over a length of time without corners; 0 at both ends.
double swell(double share) {
    const double s = std::sin(kPi * std::clamp(share, 0.0, 1.0));
    return s * s;
}

// Ventilation: low noise that breathes slowly. A filter's first round over the loop only settles its state.
void add_air(Samples& loop, Random& random) {
    Samples noise(loop.size());
    for (double& sample : noise) sample = random.noise();
    LowPass rumble(140.0);
    LowPass breath(600.0);
    const double turn = 2.0 * kPi / static_cast<double>(loop.size());
    for (int round = 0; round < 2; ++round) {
        for (std::size_t at = 0; at < loop.size(); ++at) {
            const double low = rumble.next(noise[at]);
            const double high = breath.next(noise[at]);
            const double drift = 1.0 + 0.25 * std::sin(3.0 * turn * static_cast<double>(at));
            if (round == 1) loop[at] += low * drift + 0.25 * high;
        }
    }
}

struct Talker {
    double pitch; // hertz
    double tract; // formants, to the table's
    double level;
};

Talker draw_talker(Random& random) {
    const bool deep = random.unit() < 0.5;
    const double pitch = deep ? random.between(95.0, 140.0) : random.between(165.0, 230.0);
    const double tract = deep ? random.between(0.90, 1.06) : random.between(1.02, 1.20);
    // Most stand far away, a few nearer.
    const double distance = random.between(0.15, 1.0);
    return {pitch, tract, distance * distance};
}

// One syllable of a voice too far away to be understood.
void add_syllable(Samples& loop, std::size_t start, double seconds, const Talker& talker, Random& random) {
    const Vowel& vowel = kVowels[static_cast<std::size_t>(random.unit() * kVowels.size())];
    Resonator first(vowel.first * talker.tract, 90.0);
    Resonator second(vowel.second * talker.tract, 120.0);
    Resonator third(vowel.third * talker.tract, 190.0);
    const double level = talker.level * random.between(0.5, 1.0);
    const double fall = random.between(-0.12, 0.06);
    const bool hiss = random.unit() < 0.25;
    const std::size_t length = samples_in(seconds);
    double phase = 0.0;
    for (std::size_t at = 0; at < length; ++at) {
        const double share = static_cast<double>(at) / static_cast<double>(length);
        phase += talker.pitch * (1.0 + fall * share) / kSampleRate;
        double source = 0.04 * random.noise();
        if (phase >= 1.0) {
            phase -= 1.0;
            source += 8.0;
        }
        double voice = first.next(source) + 0.6 * second.next(source) + 0.3 * third.next(source);
        if (hiss && share < 0.3) voice += 0.02 * random.noise() * swell(share / 0.3);
        wrapped(loop, start + at) += level * std::sqrt(swell(share)) * voice;
    }
}

// A passenger who talks in turns of a few seconds all around the loop.
void add_talker(Samples& loop, Random& random) {
    const Talker talker = draw_talker(random);
    const double begin = random.between(0.0, kLoopSeconds);
    double time = 0.0;
    while (time < kLoopSeconds - 6.0) {
        const double turn = random.between(1.2, 4.0);
        for (double spoken = 0.0; spoken < turn;) {
            const double seconds = random.between(0.10, 0.24);
            Talker now = talker;
            now.pitch *= random.between(0.92, 1.12) * (1.0 - 0.12 * spoken / turn);
            add_syllable(loop, samples_in(begin + time + spoken), seconds, now, random);
            spoken += seconds + random.between(0.0, 0.06);
        }
        time += turn + random.between(0.5, 2.5);
    }
}

// One heel on stone.
void add_step(Samples& loop, std::size_t start, double heel, double level, Random& random) {
    Resonator thud(heel, 60.0);
    Resonator knock(heel * 9.0, 420.0);
    for (std::size_t at = 0; at < samples_in(0.12); ++at) {
        const double time = static_cast<double>(at) / kSampleRate;
        const double strike = random.noise() * std::exp(-time / 0.004) * std::min(1.0, time / 0.001);
        wrapped(loop, start + at) += level * (5.0 * thud.next(strike) + 1.1 * knock.next(strike));
    }
}

// Somebody walks by: the steps come nearer and go.
void add_walker(Samples& loop, double begin, Random& random) {
    const double seconds = random.between(7.0, 13.0);
    const double pace = random.between(0.47, 0.60);
    const double heel = random.between(110.0, 190.0);
    const double level = random.between(0.4, 1.0);
    for (double time = 0.0; time < seconds; time += pace * random.between(0.96, 1.04)) {
        const double near = swell(time / seconds) * random.between(0.8, 1.0);
        add_step(loop, samples_in(begin + time), heel, level * near, random);
    }
}

// A case on small wheels, far off: a rumble with the joints of the floor in it.
void add_case(Samples& loop, double begin, Random& random) {
    const double seconds = random.between(8.0, 12.0);
    const double joints = random.between(3.2, 4.4); // floor joints a second
    const double level = random.between(0.6, 1.0);
    Resonator wheels(random.between(260.0, 380.0), 240.0);
    Resonator shell(random.between(700.0, 950.0), 300.0);
    const std::size_t length = samples_in(seconds);
    const std::size_t start = samples_in(begin);
    for (std::size_t at = 0; at < length; ++at) {
        const double time = static_cast<double>(at) / kSampleRate;
        const double joint = std::fmod(time * joints, 1.0) / joints;
        const double knock = 1.0 + 1.6 * std::exp(-joint / 0.02) * std::min(1.0, joint / 0.003);
        const double noise = random.noise() * knock;
        const double near = swell(static_cast<double>(at) / static_cast<double>(length));
        wrapped(loop, start + at) += level * near * (wheels.next(noise) + 0.5 * shell.next(noise));
    }
}

void add_layer(Samples& loop, const Samples& layer, double level) {
    const double gain = level / root_mean_square(layer);
    for (std::size_t at = 0; at < loop.size(); ++at) loop[at] += gain * layer[at];
}

Samples make_murmur(Random& random) {
    Samples dry(samples_in(kLoopSeconds), 0.0);
    for (int talker = 0; talker < 26; ++talker) add_talker(dry, random);
    return in_hall(dry);
}

// Steps and cases are spread evenly over the loop, so that no second of it is empty or crowded.
Samples make_steps(Random& random) {
    Samples dry(samples_in(kLoopSeconds), 0.0);
    for (int walker = 0; walker < 8; ++walker)
        add_walker(dry, (walker + random.between(0.0, 0.8)) * kLoopSeconds / 8.0, random);
    return in_hall(dry);
}

Samples make_cases(Random& random) {
    Samples dry(samples_in(kLoopSeconds), 0.0);
    for (int number = 0; number < 3; ++number)
        add_case(dry, (number + random.between(0.0, 0.6)) * kLoopSeconds / 3.0, random);
    return in_hall(dry);
}

} // namespace

Samples make_ambience() {
    Random random(2002);
    Samples air(samples_in(kLoopSeconds), 0.0);
    add_air(air, random);
    Samples loop(air.size(), 0.0);
    add_layer(loop, air, kAirLevel);
    add_layer(loop, make_murmur(random), kMurmurLevel);
    add_layer(loop, make_steps(random), kStepsLevel);
    add_layer(loop, make_cases(random), kCasesLevel);
    for (double& sample : loop) sample = kCeiling * std::tanh(sample / kCeiling);
    return loop;
}

} // namespace synth
