#include "SoundFixture.h"

#include "sound/DS_Engine.h"

// What the device is told while the pilot wants to hear nothing, and afterwards.

namespace gatewise::sound_test {
namespace {

class Mute : public testing::Test {
protected:
    Mute() {
        folder.write("tone.wav", waveOf(Bytes(800, 0x90)));
        engine.Initialize_Engine();
    }
    /// Plays on a channel; the buffer that the device was given for it.
    SoundBuffer play(std::int16_t channel) {
        engine.LoadWavToChannel(channel, folder.path() + "\\tone.wav");
        engine.PlayDXSound(channel, false);
        return device.played.back().first;
    }
    std::int32_t volumeOf(std::int16_t channel) {
        std::int32_t volume = 12345;
        engine.GetVolume(channel, volume);
        return volume;
    }

    static constexpr std::int32_t kSilence = -10000;
    test::TempFolder folder;
    WatchedDevice device;
    ScriptedLoop loop;
    DS_Engine engine{device, loop};
};

TEST_F(Mute, WhatPlaysFallsSilentAndComesBackAsLoudAsItWas) {
    const SoundBuffer hall = play(8);
    engine.SetVolume(8, -1800);
    const SoundBuffer voice = play(1);
    engine.setMuted(true);
    EXPECT_EQ(device.volume(hall), kSilence);
    EXPECT_EQ(device.volume(voice), kSilence);
    EXPECT_TRUE(device.stopped.empty()) << "the hall goes on unheard";
    engine.setMuted(false);
    EXPECT_EQ(device.volume(hall), -1800);
    EXPECT_EQ(device.volume(voice), 0);
}

TEST_F(Mute, WhatBeginsMeanwhileIsSilentFromTheStart) {
    engine.setMuted(true);
    const SoundBuffer voice = play(2);
    EXPECT_EQ(device.volume(voice), kSilence);
    engine.setMuted(false);
    EXPECT_EQ(device.volume(voice), 0);
}

TEST_F(Mute, AFadeGoesOnUnheardAndIsReadBackAsItIsSet) {
    const SoundBuffer hall = play(8);
    engine.setMuted(true);
    engine.ChangeVolume(8, -8820);
    engine.SetVolume(8, -300);
    EXPECT_EQ(volumeOf(8), -300);
    EXPECT_EQ(device.volume(hall), kSilence);
    engine.setMuted(false);
    EXPECT_EQ(device.volume(hall), -300);
}

TEST_F(Mute, AVolumeOutOfRangeChangesNothingHereEither) {
    const SoundBuffer hall = play(8);
    engine.SetVolume(8, -500);
    engine.setMuted(true);
    for (const std::int16_t volume : Shorts{1, 32767, -10001}) {
        engine.SetVolume(8, volume);
        engine.ChangeVolume(8, volume);
        EXPECT_EQ(volumeOf(8), -500) << volume;
    }
    engine.setMuted(false);
    EXPECT_EQ(device.volume(hall), -500);
}

TEST_F(Mute, EchoesAreSilentTooAndKeepTheVolumeTheyBeganWith) {
    (void)play(1);
    engine.SetVolume(1, -700);
    engine.setMuted(true);
    engine.PlayEcho(1, 2, 5);
    const SoundBuffer first = device.played[1].first;
    const SoundBuffer second = device.played[2].first;
    EXPECT_EQ(device.volume(first), kSilence);
    EXPECT_EQ(device.volume(second), kSilence);
    engine.SetVolume(1, -200);
    engine.setMuted(false);
    EXPECT_EQ(device.volume(first), -700);
    EXPECT_EQ(device.volume(second), -700);
}

TEST_F(Mute, AnEchoWhoseChannelIsClearedFallsSilent) {
    (void)play(1);
    engine.PlayEcho(1, 1, 5);
    const SoundBuffer echo = device.played[1].first;
    engine.ClearBuffer(1);
    engine.setMuted(true);
    EXPECT_EQ(device.volume(echo), kSilence);
    engine.setMuted(false);
    EXPECT_EQ(device.volume(echo), 0);
}

TEST_F(Mute, MutedInTheWaitOfAnEchoTheRestOfItIsSilent) {
    (void)play(1);
    loop.inWait = [&] { engine.setMuted(true); };
    engine.PlayEcho(1, 3, 5);
    ASSERT_EQ(device.played.size(), 4U);
    for (std::size_t i = 1; i < 4; ++i) EXPECT_EQ(device.volume(device.played[i].first), kSilence) << i;
}

TEST_F(Mute, TwiceIsOnce) {
    const SoundBuffer voice = play(1);
    engine.SetVolume(1, -100);
    engine.setMuted(true);
    engine.setMuted(true);
    engine.setMuted(false);
    engine.setMuted(false);
    EXPECT_EQ(device.volume(voice), -100);
}

TEST_F(Mute, TheDeviceMayCloseAndOpenMeanwhile) {
    (void)play(1);
    engine.setMuted(true);
    engine.Terminate_Engine();
    engine.setMuted(false);
    engine.setMuted(true);
    engine.Initialize_Engine();
    EXPECT_EQ(device.volume(play(1)), kSilence);
}

} // namespace
} // namespace gatewise::sound_test
