#include "sound_openal/Loopback.h"
#include "support/Wave.h"

#include <chrono>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <vector>

// The mixer's rest, on the library's own device that plays to nobody: it mixes in real time as a sound card's
// does.

namespace gatewise::sound_test {

namespace {

// Chosen before the library looks for the first time what there is.
const bool kChosen = setenv("ALSOFT_DRIVERS", "null", 1) == 0;

/// A wave file of silence at 8,000 Hz, eight bits.
std::string silentWave(const std::filesystem::path& folder, int milliseconds) {
    const Bytes wave = test::waveOf(Bytes(static_cast<std::size_t>(8 * milliseconds), 0x80));
    const auto path = folder / ("silence" + std::to_string(milliseconds) + ".wav");
    std::ofstream(path, std::ios::binary) << asText(wave);
    return path.string();
}

/// The sound that the device has mixed so far, in time. It stands while the mixer rests.
std::chrono::nanoseconds mixedBy(ALCdevice* device) {
    auto* ask = reinterpret_cast<LPALCGETINTEGER64VSOFT>(alcGetProcAddress(device, "alcGetInteger64vSOFT"));
    ALCint64SOFT time = 0;
    ask(device, ALC_DEVICE_CLOCK_SOFT, 1, &time);
    return std::chrono::nanoseconds(time);
}

/// Seconds into its sound of each source of the current context that plays.
std::vector<float> placesNow() {
    constexpr ALuint kMost = 64; // the library counts its sources from 1
    std::vector<float> out;
    for (ALuint source = 1; source < kMost; ++source) {
        ALint state = 0;
        float place = 0;
        if (alIsSource(source) != AL_TRUE) continue;
        alGetSourcei(source, AL_SOURCE_STATE, &state);
        alGetSourcef(source, AL_SEC_OFFSET, &place);
        if (state == AL_PLAYING) out.push_back(place);
    }
    return out;
}

/// A device beside ours that nobody lets rest: what it has mixed is how much time a mixer had.
class Beside {
public:
    Beside() : device_(alcOpenDevice(nullptr)), context_(alcCreateContext(device_, nullptr)) {}
    ~Beside() {
        alcDestroyContext(context_);
        alcCloseDevice(device_);
    }
    Beside(const Beside&) = delete;
    Beside& operator=(const Beside&) = delete;
    /// Waits until it has mixed so much more.
    bool mixes(std::chrono::nanoseconds more) const {
        const auto until = mixedBy(device_) + more;
        return soon([&] { return mixedBy(device_) >= until; });
    }

private:
    ALCdevice* device_;
    ALCcontext* context_;
};

class Resting : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(kChosen && opens(device_));
        std::filesystem::create_directories(folder_);
    }
    void TearDown() override { std::filesystem::remove_all(folder_); }

    bool rests() {
        return soon([&] { return device_.resting(); });
    }
    [[nodiscard]] std::chrono::nanoseconds mixed() const { return mixedBy(device_.output().device()); }

    std::filesystem::path folder_ = std::filesystem::temp_directory_path() /
                                    ("rest" + std::to_string(std::time(nullptr)) + "_" +
                                     testing::UnitTest::GetInstance()->current_test_info()->name());
    OpenAlDevice device_;
};

} // namespace

TEST_F(Resting, WithoutASoundTheMixerRestsAndCostsNothing) {
    const Beside beside;
    ASSERT_TRUE(rests());
    const auto before = mixed();
    const int turns = device_.turnsOfRest();
    ASSERT_TRUE(beside.mixes(std::chrono::seconds(1)));
    EXPECT_EQ(mixed(), before) << "silence is mixed";
    EXPECT_EQ(device_.turnsOfRest(), turns) << "nobody called the one who sends to rest";
}

TEST_F(Resting, ASoundWakesItUntilItHasRunOut) {
    ASSERT_TRUE(rests());
    const auto began = std::chrono::steady_clock::now();
    device_.play(device_.load(silentWave(folder_, 300)), false);
    EXPECT_FALSE(device_.resting());
    ASSERT_TRUE(rests());
    EXPECT_GE(std::chrono::steady_clock::now() - began, std::chrono::milliseconds(300));
}

TEST_F(Resting, ALoopKeepsItAwakeUntilItIsStopped) {
    const SoundBuffer buffer = device_.load(silentWave(folder_, 100));
    device_.play(buffer, true);
    // Longer than the sound and the time until a rest together.
    const auto until = mixed() + std::chrono::milliseconds(900);
    EXPECT_TRUE(soon([&] { return mixed() >= until; })) << "the mixer rests under a loop";
    EXPECT_FALSE(device_.resting());
    device_.stop(buffer);
    EXPECT_TRUE(rests());
}

TEST_F(Resting, ASoundThatNobodyHearsLetsItRest) {
    const SoundBuffer buffer = device_.load(silentWave(folder_, 100));
    device_.play(buffer, true);
    EXPECT_FALSE(device_.resting());
    for (const int silent : {-10000, -9000}) {
        device_.setVolume(buffer, silent);
        EXPECT_TRUE(rests()) << silent;
        device_.play(buffer, true);
        EXPECT_TRUE(device_.resting()) << "it plays on for nobody at " << silent;
        device_.setVolume(buffer, -8999);
        EXPECT_FALSE(device_.resting()) << silent;
    }
}

TEST_F(Resting, WhatIsHeardAgainIsWhereItWouldBe) {
    auto now = VoiceClock::now();
    OpenAlRoad road;
    road.now = [&] { return now; };
    OpenAlDevice device(road);
    ASSERT_TRUE(opens(device));
    const SoundBuffer loop = device.load(silentWave(folder_, 10'000));
    const SoundBuffer once = device.load(silentWave(folder_, 5'000));
    for (const SoundBuffer buffer : {loop, once}) {
        device.play(buffer, buffer == loop);
        device.setVolume(buffer, -10000);
    }
    ASSERT_TRUE(soon([&] { return device.resting(); }));
    now += std::chrono::seconds(17);
    for (const SoundBuffer buffer : {loop, once}) device.setVolume(buffer, 0);
    const std::vector<float> places = placesNow();
    ASSERT_EQ(places.size(), 2U) << "both sides of the loop; the other sound has run out";
    for (const float place : places) EXPECT_GE(place, 7.0F);
}

TEST_F(Resting, ASlowerRateLastsLonger) {
    const SoundBuffer buffer = device_.load(silentWave(folder_, 200));
    const auto began = std::chrono::steady_clock::now();
    device_.play(buffer, false);
    device_.setFrequency(buffer, 1000);
    ASSERT_TRUE(rests());
    EXPECT_GE(std::chrono::steady_clock::now() - began, std::chrono::milliseconds(1500));
}

TEST_F(Resting, ReleasingTheLastSoundLetsItRest) {
    const SoundBuffer buffer = device_.load(silentWave(folder_, 100));
    device_.play(buffer, true);
    EXPECT_FALSE(device_.resting());
    device_.release(buffer);
    EXPECT_TRUE(rests());
}

TEST_F(Resting, ASoundThatComesAndGoesAtOnceLeavesItResting) {
    ASSERT_TRUE(rests());
    for (int i = 0; i < 50; ++i) {
        const SoundBuffer buffer = device_.load(silentWave(folder_, 100));
        device_.play(buffer, true);
        device_.release(buffer);
        ASSERT_TRUE(rests()) << i;
    }
}

TEST_F(Resting, ClosingWhileItRestsEndsCleanly) {
    ASSERT_TRUE(rests());
    device_.close();
    EXPECT_FALSE(device_.resting());
    EXPECT_TRUE(opens(device_));
}

} // namespace gatewise::sound_test
