#include "Loopback.h"

#include "Tone.h"

#include <atomic>
#include <future>

// A sound of many megabytes is read beside the program's own work; what is asked of it meanwhile holds.

namespace gatewise::sound_test {
namespace {

using namespace std::chrono_literals;

constexpr int kSeconds = 140; // of 8,000 samples: above a megabyte

class LongSound : public testing::Test {
protected:
    void SetUp() override { folder.write("long.wav", waveOf(tone(kSeconds * 8000))); }
    OpenAlRoad road() {
        OpenAlRoad road = loopbackRoad();
        road.now = [this] { return VoiceClock::time_point(now.load()); };
        return road;
    }
    [[nodiscard]] std::string path() const { return folder.path() + "\\long.wav"; }
    static bool comes(const OpenAlDevice& device) {
        return soon([&] { return !device.reading(); });
    }
    static double loudness(const OpenAlDevice& device) {
        render(device, 4800);
        return amplitudeAt(render(device, 9600).left, kTone, 0, 9600);
    }

    test::TempFolder folder;
    std::atomic<VoiceClock::duration> now{1h};
};

TEST_F(LongSound, IsHeardOnceItIsRead) {
    OpenAlDevice device(road());
    ASSERT_TRUE(opens(device));
    const SoundBuffer buffer = device.load(path());
    ASSERT_NE(buffer, SoundBuffer::None);
    EXPECT_EQ(device.frequency(buffer), 8000);
    device.play(buffer, false);
    device.setVolume(buffer, -600);
    device.setPan(buffer, 1000);
    ASSERT_TRUE(comes(device));
    EXPECT_NEAR(decibels(loudness(device)), decibels(0.5) - 6 - 10, 0.5);
}

TEST_F(LongSound, ComesInWhereItWouldBe) {
    Bytes samples(std::size_t{kSeconds} * 8000, 0x80); // a tone in its last minute alone
    const Bytes last = tone(60 * 8000);
    std::copy(last.begin(), last.end(), samples.end() - static_cast<std::ptrdiff_t>(last.size()));
    folder.write("long.wav", waveOf(samples));
    OpenAlDevice device(road());
    const SoundBuffer buffer = device.load(path());
    device.play(buffer, false);
    now = 1h + 100s;
    ASSERT_TRUE(opens(device));
    ASSERT_TRUE(comes(device));
    EXPECT_NEAR(decibels(loudness(device)), decibels(0.5), 0.5);
}

TEST_F(LongSound, ItsEchoesAreReadWithIt) {
    OpenAlDevice device(road());
    ASSERT_TRUE(opens(device));
    const SoundBuffer first = device.load(path());
    const SoundBuffer echo = device.duplicate(first);
    device.release(first);
    device.play(echo, true);
    ASSERT_TRUE(comes(device));
    EXPECT_NEAR(decibels(loudness(device)), decibels(0.5), 0.5);
    const SoundBuffer later = device.duplicate(echo);
    EXPECT_FALSE(device.reading()) << "it is there";
    device.stop(echo);
    device.play(later, true);
    EXPECT_NEAR(decibels(loudness(device)), decibels(0.5), 0.5);
}

TEST_F(LongSound, StoppedOrReleasedMeanwhileItStaysSilent) {
    OpenAlDevice device(road());
    ASSERT_TRUE(opens(device));
    const SoundBuffer stopped = device.load(path());
    device.play(stopped, true);
    device.stop(stopped);
    const SoundBuffer released = device.load(path());
    device.play(released, true);
    device.release(released);
    ASSERT_TRUE(comes(device));
    EXPECT_LT(loudness(device), 1e-4);
    device.play(stopped, true);
    EXPECT_NEAR(decibels(loudness(device)), decibels(0.5), 0.5);
}

TEST_F(LongSound, AFileThatIsGoneOrAnotherOneMeanwhileIsSilent) {
    for (const bool gone : {true, false}) {
        folder.write("long.wav", waveOf(tone(kSeconds * 8000)));
        OpenAlDevice device(road()); // the output is not there yet: nothing is read
        const SoundBuffer buffer = device.load(path());
        ASSERT_NE(buffer, SoundBuffer::None);
        if (gone)
            std::filesystem::remove(std::filesystem::path(folder.path()) / "long.wav");
        else
            folder.write("long.wav", waveOf(tone(kSeconds * 8000), 2, 22050, 16));
        device.play(buffer, true);
        ASSERT_TRUE(opens(device));
        ASSERT_TRUE(comes(device));
        EXPECT_LT(loudness(device), 1e-4);
        device.setVolume(buffer, -100);
        EXPECT_EQ(device.volume(buffer), -100);
    }
}

TEST_F(LongSound, ClosingForgetsWhatIsOrdered) {
    OpenAlDevice device(road());
    ASSERT_TRUE(opens(device));
    for (int i = 0; i < 20; ++i) device.play(device.load(path()), true);
    device.close();
    EXPECT_FALSE(device.reading());
    ASSERT_TRUE(opens(device));
    const SoundBuffer again = device.load(path());
    device.play(again, true);
    ASSERT_TRUE(comes(device));
    EXPECT_NEAR(decibels(loudness(device)), decibels(0.5), 0.5);
}

TEST_F(LongSound, WithoutAnOutputItIsNotRead) {
    OpenAlDevice device({.openDevice = []() -> ALCdevice* { return nullptr; }, .contextAttributes = {}});
    device.open();
    const SoundBuffer buffer = device.load(path());
    ASSERT_NE(buffer, SoundBuffer::None);
    device.play(buffer, true);
    EXPECT_FALSE(device.reading());
}

TEST_F(LongSound, WhatIsNoSoundIsRefusedAtOnce) {
    OpenAlDevice device(road());
    ASSERT_TRUE(opens(device));
    folder.write("long.wav", Bytes(2 << 20, 0));
    EXPECT_EQ(device.load(path()), SoundBuffer::None);
    folder.write("long.wav", waveOf(tone(kSeconds * 8000), 3));
    EXPECT_EQ(device.load(path()), SoundBuffer::None);
}

/// Its samples begin behind what is looked at first.
TEST_F(LongSound, ALongTaleBeforeTheSamplesIsPassedOver) {
    Bytes file = waveOf(tone(kSeconds * 8000));
    Bytes tale;
    appendText(tale, "LIST");
    appendField(tale, std::uint32_t{100000});
    tale.resize(100008, 'x');
    file.insert(file.begin() + 36, tale.begin(), tale.end());
    folder.write("long.wav", file);
    OpenAlDevice device(road());
    ASSERT_TRUE(opens(device));
    const SoundBuffer buffer = device.load(path());
    ASSERT_NE(buffer, SoundBuffer::None);
    device.play(buffer, true);
    ASSERT_TRUE(comes(device));
    EXPECT_NEAR(decibels(loudness(device)), decibels(0.5), 0.5);
}

} // namespace
} // namespace gatewise::sound_test
