#include "Loopback.h"

#include "Tone.h"

#include <atomic>
#include <future>

namespace gatewise::sound_test {
namespace {

using namespace std::chrono_literals;

// On headphones the library would otherwise place each side in a virtual room.
TEST(OpenAlOutside, HeadphonesGetEachSideAsItIs) {
    test::TempFolder folder;
    folder.write("tone.wav", waveOf(tone(16000)));
    OpenAlRoad road = loopbackRoad();
    const auto hrtf = std::ranges::find(road.contextAttributes, ALC_HRTF_SOFT);
    ASSERT_NE(hrtf, road.contextAttributes.end());
    hrtf[1] = ALC_TRUE;
    OpenAlDevice device(road);
    ASSERT_TRUE(opens(device));
    const SoundBuffer buffer = device.load(folder.path() + "\\tone.wav");
    device.setPan(buffer, 3000);
    device.play(buffer, true);
    render(device, 4800);
    const Rendered heard = render(device, 9600);
    EXPECT_NEAR(decibels(amplitudeAt(heard.right, kTone, 0, 9600)), decibels(0.5), 0.5);
    EXPECT_NEAR(decibels(amplitudeAt(heard.left, kTone, 0, 9600)), decibels(0.5) - 30, 0.5);
}

// What stands outside is slow, or not there.

TEST(OpenAlOutside, NoDeviceIsSilentAndEverythingElseWorks) {
    test::TempFolder folder;
    folder.write("tone.wav", waveOf(tone(800)));
    OpenAlDevice device({.openDevice = []() -> ALCdevice* { return nullptr; }, .contextAttributes = {}});
    EXPECT_TRUE(device.open());
    EXPECT_FALSE(device.output().ready());
    const SoundBuffer buffer = device.load(folder.path() + "\\tone.wav");
    ASSERT_NE(buffer, SoundBuffer::None);
    device.play(buffer, true);
    device.setVolume(buffer, -500);
    device.setPan(buffer, 9000);
    EXPECT_EQ(device.volume(buffer), -500);
    EXPECT_EQ(device.pan(buffer), 9000);
    const SoundBuffer copy = device.duplicate(buffer);
    device.play(copy, false);
    device.stop(buffer);
    device.playOnce(folder.path() + "\\tone.wav");
    device.release(copy);
    device.close();
}

TEST(OpenAlOutside, DeviceThatWillNotGiveTheFormatIsSilent) {
    OpenAlRoad road = loopbackRoad();
    road.contextAttributes = {ALC_FORMAT_CHANNELS_SOFT, 1, ALC_FORMAT_TYPE_SOFT, 1, 0};
    OpenAlDevice device(road);
    EXPECT_TRUE(device.open());
    EXPECT_FALSE(device.output().ready());
}

TEST(OpenAlOutside, MissingDeviceIsNotAskedForAtEveryOpening) {
    std::atomic<int> asked = 0;
    OpenAlDevice device({.openDevice = [&]() -> ALCdevice* {
                             ++asked;
                             return nullptr;
                         },
                         .contextAttributes = {}});
    device.open();
    EXPECT_TRUE(soon([&] { return asked > 0; }));
    for (int i = 0; i < 50; ++i) device.open();
    EXPECT_EQ(asked, 1);
}

/// A road whose device does not come before somebody lets it.
struct HeldRoad {
    std::promise<void> let;
    std::shared_ptr<std::atomic<bool>> opened = std::make_shared<std::atomic<bool>>(false);
    OpenAlRoad road = loopbackRoad();

    HeldRoad() {
        road.openDevice = [openNow = road.openDevice, wait = let.get_future().share(), came = opened] {
            wait.wait();
            ALCdevice* device = openNow();
            *came = true;
            return device;
        };
    }
};

/// A clock that stands until it is moved, for sounds that wait for their device.
struct StandingClock {
    VoiceClock::time_point time = VoiceClock::now();
    [[nodiscard]] std::function<VoiceClock::time_point()> now() {
        return [this] { return time; };
    }
};

TEST(OpenAlOutside, SlowDeviceHoldsUpNobodyForLong) {
    HeldRoad held;
    {
        OpenAlDevice device(held.road);
        device.open();
        EXPECT_EQ(device.output().heldUp(), 400ms);
        device.open(); // waits no more
        device.playOnce("\\click.wav");
        EXPECT_EQ(device.output().heldUp(), 400ms);
        device.close(); // gives it a last moment
        EXPECT_EQ(device.output().heldUp(), 700ms);
        device.close();
        EXPECT_EQ(device.output().heldUp(), 700ms);
    }
    held.let.set_value();
    EXPECT_TRUE(soon([&] { return held.opened.use_count() == 2; })) << "the thread has not ended";
}

TEST(OpenAlOutside, DeviceThatIsThereHoldsUpNobody) {
    OpenAlDevice device(loopbackRoad());
    ASSERT_TRUE(opens(device));
    const auto before = device.output().heldUp();
    device.open();
    device.close();
    EXPECT_EQ(device.output().heldUp(), before);
}

TEST(OpenAlOutside, SlowDeviceHoldsUpTheStartForAMomentOnlyAndComesInLater) {
    test::TempFolder folder;
    folder.write("tone.wav", waveOf(tone(16000)));
    HeldRoad held;
    StandingClock clock;
    held.road.now = clock.now();
    OpenAlDevice device(held.road);
    // The device comes only below: were it waited for, this test would never end.
    EXPECT_TRUE(device.open());
    EXPECT_TRUE(device.open());
    EXPECT_FALSE(device.output().ready());

    const SoundBuffer loop = device.load(folder.path() + "\\tone.wav");
    device.play(loop, true);
    folder.write("short.wav", waveOf(tone(80)));
    const SoundBuffer gone = device.load(folder.path() + "\\short.wav");
    device.play(gone, false);
    clock.time += 100ms; // the short tone, 10 ms of it, is over meanwhile
    held.let.set_value();
    EXPECT_TRUE(soon([&] {
        device.setVolume(loop, -1000); // as a step of the fade
        return device.output().ready();
    }));
    render(device, 4800);
    const Rendered heard = render(device, 9600);
    EXPECT_NEAR(decibels(amplitudeAt(heard.left, kTone, 0, 9600)), decibels(0.5) - 10, 0.5);
}

/// A sound of 400 ms with one click in its middle, started `before` the device comes.
std::vector<std::size_t> clicksHeard(std::chrono::milliseconds before, int rate) {
    Bytes samples(3200, 0x80);
    samples[1600] = samples[1601] = 0xF0;
    test::TempFolder folder;
    folder.write("late.wav", waveOf(samples));
    HeldRoad held;
    StandingClock clock;
    held.road.now = clock.now();
    OpenAlDevice device(held.road);
    device.open();
    const SoundBuffer buffer = device.load(folder.path() + "\\late.wav");
    device.setFrequency(buffer, rate);
    device.play(buffer, false);
    clock.time += before;
    held.let.set_value();
    EXPECT_TRUE(opens(device));
    return onsets(renderMilliseconds(device, 1000).left, 0.2F, 480);
}

TEST(OpenAlOutside, WhatPlaysComesInAtThePlaceWhereItWouldBe) {
    const auto at = [](const std::vector<std::size_t>& clicks) {
        return clicks.size() == 1 ? static_cast<double>(clicks[0]) * 1000 / kRate : -1;
    };
    EXPECT_NEAR(at(clicksHeard(0ms, 8000)), 200, 1);
    EXPECT_NEAR(at(clicksHeard(150ms, 8000)), 50, 1);
    EXPECT_NEAR(at(clicksHeard(150ms, 4000)), 250, 1); // at half the rate all of it lasts twice as long
    EXPECT_TRUE(clicksHeard(201ms, 8000).empty());
    EXPECT_TRUE(clicksHeard(400ms, 8000).empty());
}

TEST(OpenAlOutside, DeviceThatNeverAnswersIsLeftBehind) {
    HeldRoad held;
    {
        OpenAlDevice device(held.road);
        device.open();
        device.close(); // comes back, though the device does not
        EXPECT_FALSE(*held.opened);
    }
    held.let.set_value();
    EXPECT_TRUE(soon([&] { return held.opened->load(); }));
    // The road itself and its holder are left, when the thread has closed what it got.
    EXPECT_TRUE(soon([&] { return held.opened.use_count() == 2; }));
}

} // namespace
} // namespace gatewise::sound_test
