#include "SoundFixture.h"

#include "platform/Files.h"
#include "sound/LongWave.h"

#include <filesystem>

// The hall's wave is long: a turn to the board does not wait for it to be read again.

namespace gatewise::sound_test {
namespace {

class CountingDevice : public SilentDevice {
public:
    SoundBuffer load(const std::string& path) override {
        ++loads;
        return SilentDevice::load(path);
    }
    int loads = 0;
};

class LongWaves : public testing::Test {
protected:
    std::string write(const char* name, std::int64_t samples) {
        folder.write(name, waveOf(Bytes(static_cast<std::size_t>(samples), 0x90)));
        return folder.path() + "\\" + name;
    }

    test::TempFolder folder;
    CountingDevice device;
    LongWave waves{device};
};

TEST_F(LongWaves, IsReadOnceAndGivesEachABufferOfItsOwn) {
    const std::string hall = write("hall.wav", LongWave::kLong);
    const SoundBuffer first = waves.load(hall);
    const SoundBuffer second = waves.load(hall);
    EXPECT_EQ(device.loads, 1);
    ASSERT_NE(first, SoundBuffer::None);
    ASSERT_NE(second, SoundBuffer::None);
    EXPECT_NE(first, second);
    device.setVolume(first, -1800);
    EXPECT_EQ(device.volume(second), 0) << "as loud as a file that was just read";
    device.release(first);
    EXPECT_EQ(device.frequency(second), 8000);
}

TEST_F(LongWaves, OfAnotherContentIsReadAnew) {
    const std::string hall = write("hall.wav", LongWave::kLong);
    waves.load(hall);
    write("hall.wav", LongWave::kLong + 1);
    EXPECT_NE(waves.load(hall), SoundBuffer::None);
    EXPECT_EQ(device.loads, 2);
}

TEST_F(LongWaves, AnotherOneTakesItsPlace) {
    const SoundBuffer one = waves.load(write("one.wav", LongWave::kLong));
    const SoundBuffer two = waves.load(write("two.wav", LongWave::kLong));
    device.release(one);
    device.release(two);
    EXPECT_EQ(device.loads, 2);
    EXPECT_EQ(device.buffers(), 1U);
}

TEST_F(LongWaves, AShortOneIsReadEachTimeAndNotKept) {
    const std::string tone = write("tone.wav", 800);
    device.release(waves.load(tone));
    device.release(waves.load(tone));
    EXPECT_EQ(device.loads, 2);
    EXPECT_EQ(device.buffers(), 0U);
}

TEST_F(LongWaves, ThatHasGoneOrIsNoSoundIsNone) {
    const std::string hall = write("hall.wav", LongWave::kLong);
    device.release(waves.load(hall));
    std::filesystem::remove(files::resolve(hall));
    EXPECT_EQ(waves.load(hall), SoundBuffer::None);
    folder.write("noise.wav", Bytes(static_cast<std::size_t>(LongWave::kLong), 0x90));
    EXPECT_EQ(waves.load(folder.path() + "\\noise.wav"), SoundBuffer::None);
    EXPECT_EQ(device.buffers(), 0U) << "what was kept before";
}

TEST_F(LongWaves, NothingStaysWhenItLetsGo) {
    device.release(waves.load(write("hall.wav", LongWave::kLong)));
    EXPECT_EQ(device.buffers(), 1U);
    waves.release();
    waves.release();
    EXPECT_EQ(device.buffers(), 0U);
}

} // namespace
} // namespace gatewise::sound_test
