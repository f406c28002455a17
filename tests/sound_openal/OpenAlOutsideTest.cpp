#include "Loopback.h"

#include "Tone.h"

#include <atomic>
#include <future>
#include <thread>

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

/// Time of `work` while the device is held, the quickest of three tries: what else the machine does counts
/// little then. `before` is not measured. Ends when the threads that were left behind have: each holds its
/// road.
template<class Before, class Work> std::chrono::nanoseconds quickest(Before before, Work work) {
    auto best = std::chrono::nanoseconds::max();
    std::vector<std::shared_ptr<std::atomic<bool>>> roads;
    for (int i = 0; i < 3; ++i) {
        HeldRoad held;
        roads.push_back(held.opened);
        OpenAlDevice device(held.road);
        before(device);
        const auto start = std::chrono::steady_clock::now();
        work(device);
        best = std::min<std::chrono::nanoseconds>(best, std::chrono::steady_clock::now() - start);
        held.let.set_value();
        EXPECT_TRUE(opens(device));
    }
    for (const auto& road : roads) EXPECT_TRUE(soon([&] { return road.use_count() == 1; }));
    return best;
}

TEST(OpenAlOutside, SlowDeviceHoldsUpNobodyForLong) {
    const auto openTwice = [](OpenAlDevice& device) {
        device.open();
        device.open();
    };
    EXPECT_LT(quickest([](OpenAlDevice&) {}, openTwice), 700ms);
    EXPECT_LT(
        quickest([](OpenAlDevice& device) { device.open(); }, [](OpenAlDevice& device) { device.close(); }),
        900ms);
}

TEST(OpenAlOutside, SlowDeviceHoldsUpTheStartForAMomentOnlyAndComesInLater) {
    test::TempFolder folder;
    folder.write("tone.wav", waveOf(tone(16000)));
    HeldRoad held;
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
    std::this_thread::sleep_for(100ms); // the short tone, 10 ms of it, is over meanwhile
    held.let.set_value();
    EXPECT_TRUE(soon([&] {
        device.setVolume(loop, -1000); // as a step of the fade
        return device.output().ready();
    }));
    render(device, 4800);
    const Rendered heard = render(device, 9600);
    EXPECT_NEAR(decibels(amplitudeAt(heard.left, kTone, 0, 9600)), decibels(0.5) - 10, 0.5);
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
