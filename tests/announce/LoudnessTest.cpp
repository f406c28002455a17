#include "announce/Hall.h"

#include <algorithm>

// How loud the hall is: the announcements' own volume, and the silence that the pilot asks for, by what the
// sound device is told.

namespace gatewise::test {
namespace {

/// The volumes of all buffers that the device has, in the order in which they were made.
std::vector<std::int32_t> volumesOn(const SoundDevice& device) {
    constexpr std::uint32_t kMostBuffers = 200; // more than a test makes
    std::vector<std::int32_t> volumes;
    for (std::uint32_t name = 1; name <= kMostBuffers; ++name) {
        if (const auto volume = device.volume(static_cast<SoundBuffer>(name))) volumes.push_back(*volume);
    }
    return volumes;
}

bool allSilent(const SoundDevice& device) {
    const auto volumes = volumesOn(device);
    return !volumes.empty() && std::ranges::all_of(volumes, [](std::int32_t v) { return v == -10000; });
}

TEST_F(Hall, AnnouncementsAreTurnedDownByTheirOwnVolumeAndTheHallIsNot) {
    departure(1215, 10);
    open(1200, "[Gatewise]\r\nannVolume=-900\r\n");
    EXPECT_EQ(play(1), "1 XX 0010");
    EXPECT_TRUE(heard("SetVolume 7 -900")) << "the chime";
    EXPECT_TRUE(heard("SetVolume 1 -900")) << "the sentence";
    const auto volumes = volumesOn(t.sound);
    EXPECT_EQ(std::ranges::count(volumes, -900), 2);
    EXPECT_EQ(std::ranges::count(volumes, t.p.session.hall.AmbienceLevel), 1) << "the hall";
}

TEST_F(Hall, TheKeysOfTheOptionsTurnTheNextAnnouncementDown) {
    departure(1215, 10);
    departure(1216, 11);
    open(1200);
    auto& options = t.p.forms.OptionsForm;
    for (int i = 0; i < 3; ++i) user::click(options.annDN);
    user::click(options.annUP);
    EXPECT_EQ(options.annVol.text, "098"); // 100 - 180 / 90
    EXPECT_EQ(t.p.session.settings.AmbienceVolume, -1800) << "the ambience has keys of its own";
    (void)play(1);
    EXPECT_TRUE(heard("SetVolume 7 -180"));
    EXPECT_TRUE(heard("SetVolume 1 -180"));
}

TEST_F(Hall, AnAnnouncementOfAnotherPageIsSofterStill) {
    departure(1219, 0);
    for (int i = 1; i < 25; ++i) departure(1300 + i, i);
    open(1200, "[Gatewise]\r\nannVolume=-9000\r\n");
    user::press(board.boardButton(1));
    user::release(board.boardButton(1));
    EXPECT_EQ(play(1), "1 XX 0000");
    EXPECT_TRUE(heard("SetVolume 1 -9500"));
}

TEST_F(Hall, MutedTheHallGoesOnUnheardAndComesBackAsItIs) {
    departure(1215, 10);
    open(1200);
    ASSERT_FALSE(allSilent(t.sound));
    user::check(t.p.forms.OptionsForm.muteCHECK, 1);
    EXPECT_EQ(t.p.session.settings.Muted, 1);
    EXPECT_TRUE(allSilent(t.sound));
    EXPECT_EQ(play(1), "1 XX 0010") << "announced all the same";
    EXPECT_TRUE(heard("SetVolume 1 0")) << "what the program asks for is as it always was";
    t.machine.loop.advance(1000); // the fade goes on
    EXPECT_TRUE(allSilent(t.sound));
    user::check(t.p.forms.OptionsForm.muteCHECK, 0);
    const auto volumes = volumesOn(t.sound);
    EXPECT_EQ(std::ranges::count(volumes, 0), 2) << "chime and sentence";
    EXPECT_EQ(std::ranges::count(volumes, t.p.session.hall.AmbienceLevel), 1);
}

TEST_F(Hall, AStartThatFindsItselfMutedIsSilentFromItsFirstSound) {
    departure(1215, 10);
    open(1200, "[Gatewise]\r\nMuted=1\r\n");
    EXPECT_EQ(t.p.forms.OptionsForm.muteCHECK.value, 1);
    EXPECT_TRUE(allSilent(t.sound));
    user::click(board.log_LABEL);
    EXPECT_FALSE(heard("PlaySoundA \\Wavs\\click.wav")) << "no key clicks";
    user::check(t.p.forms.OptionsForm.muteCHECK, 0);
    user::click(board.main_LABEL);
    EXPECT_TRUE(heard("PlaySoundA \\Wavs\\click.wav"));
}

} // namespace
} // namespace gatewise::test
