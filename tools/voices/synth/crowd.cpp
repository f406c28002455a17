#include "crowd.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace synth {

namespace {

struct Vowel {
    double first, second, third; // formants in hertz
};

// A glottal pulse: one sample, stronger the shorter a sample is.
constexpr double kPulse = 8.0 * kHallRate / kSpeechRate;

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

// One syllable of a voice.
Samples syllable(double seconds, const Talker& talker, Random& random) {
    const Vowel& vowel = kVowels[static_cast<std::size_t>(random.unit() * kVowels.size())];
    Resonator first(vowel.first * talker.tract, 90.0, kHallRate);
    Resonator second(vowel.second * talker.tract, 120.0, kHallRate);
    Resonator third(vowel.third * talker.tract, 190.0, kHallRate);
    const double level = talker.level * random.between(0.5, 1.0);
    const double fall = random.between(-0.12, 0.06);
    const bool hiss = random.unit() < 0.25;
    Samples sound(samples_in(seconds, kHallRate));
    double phase = 0.0;
    for (std::size_t at = 0; at < sound.size(); ++at) {
        const double share = static_cast<double>(at) / static_cast<double>(sound.size());
        phase += talker.pitch * (1.0 + fall * share) / kHallRate;
        double source = 0.04 * random.noise();
        if (phase >= 1.0) {
            phase -= 1.0;
            source += kPulse;
        }
        double voice = first.next(source) + 0.6 * second.next(source) + 0.3 * third.next(source);
        if (hiss && share < 0.3) voice += 0.02 * random.noise() * swell(share / 0.3);
        sound[at] = level * std::sqrt(swell(share)) * voice;
    }
    return sound;
}

// One heel on stone.
Samples footstep(double heel, double level, Random& random) {
    Resonator thud(heel, 60.0, kHallRate);
    Resonator knock(heel * 9.0, 420.0, kHallRate);
    Resonator scrape(heel * 27.0, 1800.0, kHallRate);
    Samples sound(samples_in(0.12, kHallRate));
    for (std::size_t at = 0; at < sound.size(); ++at) {
        const double time = static_cast<double>(at) / kHallRate;
        const double strike = random.noise() * std::exp(-time / 0.004) * std::min(1.0, time / 0.001);
        sound[at] = level * (5.0 * thud.next(strike) + 1.1 * knock.next(strike) + 0.3 * scrape.next(strike));
    }
    return sound;
}

// From one side to the other, or back.
Place way_across(Random& random) {
    const double from = random.between(0.4, 1.0) * (random.unit() < 0.5 ? -1.0 : 1.0);
    return {from, -from * random.between(0.3, 1.0)};
}

} // namespace

void add_talker(Hall& hall, double loop_seconds, Random& random) {
    const Talker talker = draw_talker(random);
    const double side = random.between(-1.0, 1.0);
    const double begin = random.between(0.0, loop_seconds);
    double time = 0.0;
    while (time < loop_seconds - 6.0) {
        const double turn = random.between(1.2, 4.0);
        for (double spoken = 0.0; spoken < turn;) {
            const double seconds = random.between(0.10, 0.24);
            Talker now = talker;
            now.pitch *= random.between(0.92, 1.12) * (1.0 - 0.12 * spoken / turn);
            add_placed(hall, syllable(seconds, now, random), samples_in(begin + time + spoken, kHallRate),
                       {side, side});
            spoken += seconds + random.between(0.0, 0.06);
        }
        time += turn + random.between(0.5, 2.5);
    }
}

void add_walker(Hall& hall, double begin, Random& random) {
    const double seconds = random.between(7.0, 13.0);
    const double pace = random.between(0.47, 0.60);
    const double heel = random.between(110.0, 190.0);
    const double level = random.between(0.4, 1.0);
    const Place way = way_across(random);
    for (double time = 0.0; time < seconds; time += pace * random.between(0.96, 1.04)) {
        const double near = swell(time / seconds) * random.between(0.8, 1.0);
        const double side = way.from + (way.to - way.from) * time / seconds;
        add_placed(hall, footstep(heel, level * near, random), samples_in(begin + time, kHallRate),
                   {side, side});
    }
}

void add_trolley(Hall& hall, double begin, Random& random) {
    const double seconds = random.between(8.0, 12.0);
    const double joints = random.between(3.2, 4.4); // floor joints a second
    const double level = random.between(0.6, 1.0);
    Resonator wheels(random.between(260.0, 380.0), 240.0, kHallRate);
    Resonator shell(random.between(700.0, 950.0), 300.0, kHallRate);
    Resonator rattle(random.between(3200.0, 4200.0), 1500.0, kHallRate);
    Samples sound(samples_in(seconds, kHallRate));
    for (std::size_t at = 0; at < sound.size(); ++at) {
        const double time = static_cast<double>(at) / kHallRate;
        const double joint = std::fmod(time * joints, 1.0) / joints;
        const double knock = 1.0 + 1.6 * std::exp(-joint / 0.02) * std::min(1.0, joint / 0.003);
        const double noise = random.noise() * knock;
        const double near = swell(static_cast<double>(at) / static_cast<double>(sound.size()));
        sound[at] = level * near * (wheels.next(noise) + 0.5 * shell.next(noise) + 0.1 * rattle.next(noise));
    }
    add_placed(hall, sound, samples_in(begin, kHallRate), way_across(random));
}

void add_gate_chime(Hall& hall, double begin, Random& random) {
    const double tone = random.between(560.0, 700.0);
    const double drawn = random.between(-1.0, 1.0);
    const double side = std::copysign(0.35 + 0.65 * std::abs(drawn), drawn); // never straight ahead
    const double level = random.between(0.5, 1.0);
    for (const auto& [start, hertz] : {std::pair{0.0, tone}, std::pair{0.45, tone * 0.794}}) {
        Samples sound(samples_in(1.6, kHallRate));
        for (std::size_t at = 0; at < sound.size(); ++at) {
            const double time = static_cast<double>(at) / kHallRate;
            const double attack = std::min(1.0, time / 0.01);
            sound[at] = level * attack * std::exp(-time / 0.4) *
                        (std::sin(2.0 * kPi * hertz * time) + 0.2 * std::sin(4.0 * kPi * hertz * time));
        }
        add_placed(hall, sound, samples_in(begin + start, kHallRate), {side, side});
    }
}

} // namespace synth
