#include "Loopback.h"

#include "sound/Announcements.h"
#include "sound/SoundFixture.h"
#include "sound/WaveFile.h"

namespace gatewise::sound_test {
namespace {

/// The recordings of the built program, in a copy: announcements write beside them.
class Recordings : public testing::Test {
protected:
    void SetUp() override {
        const std::filesystem::path built = GATEWISE_PROGRAM_DIR "/Wavs";
        if (!std::filesystem::exists(built / "Female" / "ann1.wav"))
            GTEST_SKIP() << "the recordings are not built";
        std::filesystem::copy(built, folder / "Wavs", std::filesystem::copy_options::recursive);
        ASSERT_TRUE(opens(device));
        engine.Initialize_Engine();
    }
    /// Seconds until the last moment that is louder than -50 dB.
    static double heardFor(const Rendered& sound) {
        std::size_t last = 0;
        for (std::size_t i = 0; i < sound.left.size(); ++i) {
            if (std::abs(sound.left[i]) > 0.00316F || std::abs(sound.right[i]) > 0.00316F) last = i;
        }
        return static_cast<double>(last) / kRate;
    }
    std::string firstKey(const std::string& kind) {
        std::vector<std::string> names;
        for (const auto& entry : std::filesystem::directory_iterator(folder / ("Wavs/Female/" + kind)))
            names.push_back(entry.path().stem().string());
        return *std::ranges::min_element(names);
    }
    double announcedFor(std::int32_t frequency) {
        AnnouncementFlags flags{};
        std::string airline = firstKey("Airlines");
        airline.resize(3, ' ');
        PlayAnnouncement(
            engine, folder.path(),
            {.flightKey = airline + "1205", .kind = 1, .city = firstKey("Cities"), .frequency = frequency},
            flags);
        EXPECT_EQ(flags[0], -1);
        engine.StopDXSound(7); // the sentence without the chime
        const double heard = heardFor(renderMilliseconds(device, 30000));
        const auto joined = readWave(folder.bytes("Wavs/tmp1.wav"));
        EXPECT_TRUE(joined);
        if (joined) samples = joined->samples.size();
        return heard;
    }

    test::TempFolder folder;
    OpenAlDevice device{loopbackRoad()};
    RenderingLoop loop{device};
    DS_Engine engine{device, loop};
    std::size_t samples = 0;
};

TEST_F(Recordings, SentenceIsHeardToItsEndAtEachRate) {
    for (const int frequency : {8000, 7500, 8300}) {
        const double heard = announcedFor(frequency);
        const double length = static_cast<double>(samples) / frequency;
        EXPECT_GT(length, 3) << frequency;
        EXPECT_LE(heard, length + 0.01) << frequency;
        EXPECT_GT(heard, length - 0.3) << frequency; // the last word dies away
    }
}

TEST_F(Recordings, SentenceBehindThePageComesFromTheRight) {
    AnnouncementFlags flags{};
    PlayAnnouncement(engine, folder.path(),
                     {.flightKey = "ZZ 0007", .kind = 2, .city = "ZZZ", .pan = 9000, .volume = -500}, flags);
    EXPECT_EQ(flags[1], -1);
    const Rendered heard = renderMilliseconds(device, 3000);
    EXPECT_GT(decibels(rms(heard.right, 0, heard.right.size())), -40);
    EXPECT_LT(decibels(rms(heard.left, 0, heard.left.size())), -90);
}

TEST_F(Recordings, AmbienceGoesRoundWithoutASilence) {
    engine.LoadWavToChannel(8, folder.path() + "\\Wavs\\Ambience.wav");
    engine.PlayDXSound(8, true);
    ASSERT_TRUE(soon([&] { return !device.reading(); }));
    const auto ambience = readWave(folder.bytes("Wavs/Ambience.wav"));
    ASSERT_TRUE(ambience);
    const std::size_t second =
        std::size_t{ambience->channels} * ambience->bits / 8 * static_cast<std::size_t>(ambience->rate);
    const auto seconds = static_cast<int>(ambience->samples.size() / second);
    EXPECT_GE(seconds, 120);
    // Once round at more than twice its rate, and over the seam.
    engine.SetFrequency(8, kHighestFrequency);
    const int faster = static_cast<int>(std::int64_t{seconds} * 1000 * ambience->rate / kHighestFrequency);
    const Rendered heard = renderMilliseconds(device, faster + 5000);
    for (std::size_t from = kRate / 4; from + kRate / 4 <= heard.left.size(); from += kRate / 4)
        EXPECT_GT(decibels(rms(heard.left, from, kRate / 4)), -60) << from;
}

TEST_F(Recordings, ClickAndChimeAreHeard) {
    PlaySoundA(device, folder.path() + "\\Wavs\\click.wav");
    const double click = heardFor(renderMilliseconds(device, 2000));
    EXPECT_GT(click, 0);
    EXPECT_LT(click, 0.5);
    engine.LoadWavToChannel(7, folder.path() + "\\Wavs\\Announcements.wav");
    engine.PlayDXSound(7, false);
    EXPECT_GT(heardFor(renderMilliseconds(device, 10000)), 0.3);
}

} // namespace
} // namespace gatewise::sound_test
