#include "Loopback.h"

#include "sound/SoundFixture.h"

#include <fstream>

// The sound of the keys is heard hundreds of times: its file is read once, and again when it has changed.

namespace gatewise::sound_test {
namespace {

class Click : public testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(opens(device_)) << "the library has no loopback device";
        write(loud());
    }
    static Bytes loud() {
        Bytes samples(400, 0x80);
        for (std::size_t i = 0; i < samples.size(); i += 2) samples[i] = 0xF0;
        return samples;
    }
    static Bytes silent() { return Bytes(400, 0x80); }
    /// Into the file that is there, which stays the same file to the system.
    void write(const Bytes& samples) const {
        const Bytes wave = waveOf(samples);
        std::ofstream(file(), std::ios::binary | std::ios::trunc)
            .write(reinterpret_cast<const char*>(wave.data()), static_cast<std::streamsize>(wave.size()));
    }
    [[nodiscard]] std::filesystem::path file() const { return folder_ / "click.wav"; }
    bool heard() {
        device_.playOnce(folder_.path("\\click.wav"));
        const Rendered sound = render(device_, kRate / 10);
        return std::any_of(sound.left.begin(), sound.left.end(), [](float v) { return std::abs(v) > 0.1F; });
    }

    const test::TempFolder folder_;
    OpenAlDevice device_{loopbackRoad()};
};

} // namespace

TEST_F(Click, AFileThatSeemsUnchangedIsNotReadAgain) {
    const auto before = std::filesystem::last_write_time(file());
    ASSERT_TRUE(heard());
    write(silent());
    std::filesystem::last_write_time(file(), before);
    EXPECT_TRUE(heard());
}

TEST_F(Click, AChangedFileIsReadAgain) {
    ASSERT_TRUE(heard());
    write(silent());
    std::filesystem::last_write_time(file(),
                                     std::filesystem::last_write_time(file()) + std::chrono::seconds(1));
    EXPECT_FALSE(heard());
    std::filesystem::remove(file());
    EXPECT_FALSE(heard());
}

} // namespace gatewise::sound_test
