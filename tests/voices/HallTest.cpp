#include "synth/hall.h"
#include "synth/ambience.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

// Who stands out in the hall's loop comes from where it was put: measured in the wave that ships, one by one.

namespace synth {

namespace {

constexpr std::size_t kHeader = 44;
constexpr double kTail = 0.25; // seconds of a sound's echo that belong to it

Hall shipped() {
    std::ifstream file(GATEWISE_WAVS "/Ambience.wav", std::ios::binary);
    const std::string bytes{std::istreambuf_iterator<char>(file), {}};
    Hall hall;
    for (std::size_t at = kHeader; at + 4 <= bytes.size(); at += 4) {
        const auto sample = [&](std::size_t from) {
            const auto low = static_cast<std::uint8_t>(bytes[from]);
            return static_cast<double>(static_cast<std::int16_t>(low | (bytes[from + 1] << 8))) / 32768.0;
        };
        hall.left.push_back(sample(at));
        hall.right.push_back(sample(at + 2));
    }
    return hall;
}

/// How much of a sound is in an ear from `start` on, as a share of the sound as it would be right beside it.
double shareOf(const Samples& sound, std::size_t start, const Samples& ear) {
    double product = 0, power = 0;
    for (std::size_t at = 0; at < sound.size(); ++at) {
        product += sound[at] * ear[(start + at) % ear.size()];
        power += sound[at] * sound[at];
    }
    return power > 0 ? product / power : 0;
}

/// The ear that is turned away hears it up to so many samples later.
double bestShare(const Samples& sound, std::size_t start, const Samples& ear) {
    constexpr std::size_t kLatest = kHallRate * 6 / 10'000;
    double best = 0;
    for (std::size_t late = 0; late <= kLatest; ++late)
        best = std::max(best, shareOf(sound, start + late, ear));
    return best;
}

/// What was heard of one or several sounds.
struct Heard {
    double left = 0, right = 0, power = 0;

    [[nodiscard]] double side() const { return std::atan2(right, left) * 4 / kPi - 1; }
    Heard& operator+=(const Heard& more) {
        const double all = power + more.power;
        if (all <= 0) return *this; // the first step of a walker is silent
        left = (left * power + more.left * more.power) / all;
        right = (right * power + more.right * more.power) / all;
        power = all;
        return *this;
    }
};

/// What is heard of a part of a laid sound, from the share `from` to the share `to` of it.
Heard measure(const Laid& laid, double from, double to, const Hall& hall) {
    const auto length = static_cast<double>(laid.sound.size());
    const auto first = static_cast<std::size_t>(from * length);
    Samples part(laid.sound.begin() + static_cast<std::ptrdiff_t>(first),
                 laid.sound.begin() + static_cast<std::ptrdiff_t>(to * length));
    Heard heard;
    for (const double sample : part) heard.power += sample * sample;
    part.resize(part.size() + samples_in(kTail, kHallRate), 0.0);
    heard.left = bestShare(in_hall(part, Ear::Left), laid.start + first, hall.left);
    heard.right = bestShare(in_hall(part, Ear::Right), laid.start + first, hall.right);
    return heard;
}

double placeAt(const Laid& laid, double share) {
    return laid.place.from + (laid.place.to - laid.place.from) * share;
}

class HallLoop : public testing::Test {
protected:
    static void SetUpTestSuite() {
        all_ = passages_of_ambience();
        hall_ = shipped();
    }
    void SetUp() override { ASSERT_FALSE(hall_.left.empty()) << "no recording of the hall"; }
    static double secondsOf(const Laid& laid) { return static_cast<double>(laid.start) / kHallRate; }
    static std::vector<Passage> of(Passer who) {
        std::vector<Passage> out;
        for (const Passage& passage : all_) {
            if (passage.who == who) out.push_back(passage);
        }
        return out;
    }
    static std::vector<Passage> all_;
    static Hall hall_;
};

std::vector<Passage> HallLoop::all_;
Hall HallLoop::hall_;

} // namespace

TEST_F(HallLoop, EachChimeComesFromItsOwnSide) {
    int left = 0, right = 0;
    for (const Passage& chime : of(Passer::Chime)) {
        ASSERT_EQ(chime.sounds.size(), 2U);
        for (const Laid& tone : chime.sounds) {
            const Heard heard = measure(tone, 0, 1, hall_);
            EXPECT_NEAR(heard.side(), tone.place.from, 0.2) << secondsOf(tone);
            ++(heard.side() < 0 ? left : right);
        }
    }
    EXPECT_EQ(left, 6);
    EXPECT_EQ(right, 6);
}

TEST_F(HallLoop, EachTrolleyRollsAcross) {
    constexpr int kParts = 4;
    int rightward = 0;
    const auto trolleys = of(Passer::Trolley);
    for (const Passage& trolley : trolleys) {
        const Laid& laid = trolley.sounds.at(0);
        std::vector<double> sides;
        for (int part = 0; part < kParts; ++part) {
            const double from = static_cast<double>(part) / kParts;
            sides.push_back(measure(laid, from, from + 1.0 / kParts, hall_).side());
            EXPECT_NEAR(sides.back(), placeAt(laid, from + 0.5 / kParts), 0.25)
                << secondsOf(laid) << " " << part;
        }
        EXPECT_LT(sides.front() * sides.back(), 0) << secondsOf(laid) << " stays on one side";
        rightward += sides.front() < sides.back() ? 1 : 0;
    }
    EXPECT_EQ(trolleys.size(), 9U);
    EXPECT_GE(rightward, 3);
    EXPECT_LE(rightward, 6);
}

TEST_F(HallLoop, EachStepThatComesNearIsWhereItsWalkerIs) {
    constexpr double kNear = 0.6; // power from which a step stands out of the murmur
    int left = 0, right = 0;
    for (const Passage& walker : of(Passer::Walker)) {
        for (const Laid& step : walker.sounds) {
            const Heard heard = measure(step, 0, 1, hall_);
            if (heard.power < kNear) continue;
            EXPECT_NEAR(heard.side(), step.place.from, 0.25) << secondsOf(step);
            left += heard.side() < -0.1 ? 1 : 0;
            right += heard.side() > 0.1 ? 1 : 0;
        }
    }
    EXPECT_GE(left, 30);
    EXPECT_GE(right, 30);
}

TEST_F(HallLoop, EachWalkerGoesAcross) {
    const auto walkers = of(Passer::Walker);
    for (const Passage& walker : walkers) {
        const auto& steps = walker.sounds;
        Heard coming, going;
        for (std::size_t i = 0; i < steps.size(); ++i)
            (i < steps.size() / 2 ? coming : going) += measure(steps[i], 0, 1, hall_);
        const bool rightward = steps.front().place.from < steps.back().place.from;
        const double way = (going.side() - coming.side()) * (rightward ? 1 : -1);
        EXPECT_GT(way, 0.05) << secondsOf(steps.front());
    }
    EXPECT_EQ(walkers.size(), 24U);
}

} // namespace synth
