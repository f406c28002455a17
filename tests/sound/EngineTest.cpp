#include "SoundFixture.h"

#include "sound/DS_Engine.h"

namespace gatewise::sound_test {
namespace {

using Lines = std::vector<std::string>;
using Waits = std::vector<std::int64_t>;

class Engine : public testing::Test {
protected:
    Engine() {
        listener.folder = folder.path();
        device.log = &listener;
        folder.write("tone.wav", waveOf(Bytes(800, 0x90)));
        folder.write("fast.wav", waveOf(Bytes(800, 0x90), 1, 11025));
        folder.write("broken.wav", Bytes{'R', 'I', 'F', 'F'});
    }
    void load(std::int16_t channel) { engine.LoadWavToChannel(channel, folder.path() + "\\tone.wav"); }
    void openAndLoad(std::int16_t channel) {
        engine.Initialize_Engine();
        load(channel);
    }
    std::int32_t volumeOf(std::int16_t channel) {
        std::int32_t volume = 12345;
        engine.GetVolume(channel, volume);
        return volume;
    }

    test::TempFolder folder;
    Listener listener;
    WatchedDevice device;
    ScriptedLoop loop;
    DS_Engine engine{device, loop};
};

TEST_F(Engine, ReportsEveryOperationWithItsArgumentsAlsoOnUnloadedChannels) {
    std::int32_t number = 0;
    std::string text;
    engine.LoadWavToChannel(8, folder.path() + "\\Wavs\\Ambience.wav");
    engine.SetFrequency(1, 7500);
    engine.GetFrequency(1, number);
    engine.SetVolume(8, -9000);
    engine.GetVolume(8, number);
    engine.SetPan(2, 9000);
    engine.GetPan(2, number);
    engine.PlayDXSound(8, true);
    engine.PlayEcho(1, 2, 5);
    engine.StopDXSound(8);
    engine.ClearBuffer(8);
    engine.Initialize_Engine();
    engine.Terminate_Engine();
    engine.GetReadableVolume(-500, text);
    engine.GetSpeakerConfig(text);
    engine.SetSpeakerConfig("stereo");
    engine.Pause(20);
    engine.ChangeVolume(8, -8820);
    EXPECT_EQ(listener.lines,
              (Lines{"LoadWavToChannel 8 \\Wavs\\Ambience.wav", "SetFrequency 1 7500", "GetFrequency 1",
                     "SetVolume 8 -9000", "GetVolume 8", "SetPan 2 9000", "GetPan 2", "PlayDXSound 8 true",
                     "PlayEcho 1 2 5", "StopDXSound 8", "ClearBuffer 8", "Initialize_Engine",
                     "Terminate_Engine", "GetReadableVolume -500", "GetSpeakerConfig",
                     "SetSpeakerConfig stereo", "Pause 20", "ChangeVolume 8 -8820"}));
}

TEST_F(Engine, ClickIsReportedAndPlayed) {
    PlaySoundA(device, folder.path() + "\\Wavs\\click.wav");
    EXPECT_EQ(listener.lines, Lines{"PlaySoundA \\Wavs\\click.wav"});
    EXPECT_EQ(device.clicks, std::vector{folder.path() + "\\Wavs\\click.wav"});
}

TEST_F(Engine, WorksWithoutAnObserver) {
    device.log = nullptr;
    openAndLoad(1);
    PlaySoundA(device, "click.wav");
    EXPECT_EQ(volumeOf(1), 0);
}

TEST_F(Engine, LoadsNothingBeforeItIsInitialised) {
    load(1);
    EXPECT_EQ(volumeOf(1), 12345);
    EXPECT_EQ(device.buffers(), 0U);
}

TEST_F(Engine, LoadsNothingOnADeviceThatDoesNotOpen) {
    device.opens = false;
    openAndLoad(1);
    engine.PlayEcho(1, 2, 5);
    EXPECT_EQ(device.buffers(), 0U);
    EXPECT_TRUE(loop.waits.empty());
}

TEST_F(Engine, InitialisingAgainKeepsTheChannels) {
    openAndLoad(1);
    engine.Initialize_Engine();
    EXPECT_EQ(device.opened, 2);
    EXPECT_EQ(volumeOf(1), 0);
}

TEST_F(Engine, SettingsReachTheLoadedChannelAlone) {
    openAndLoad(1);
    load(2);
    engine.SetVolume(1, -700);
    engine.SetPan(1, 9000);
    engine.SetFrequency(1, 8300);
    std::int32_t pan = 1, hertz = 1;
    engine.GetPan(1, pan);
    engine.GetFrequency(1, hertz);
    EXPECT_EQ(volumeOf(1), -700);
    EXPECT_EQ(pan, 9000);
    EXPECT_EQ(hertz, 8300);
    EXPECT_EQ(volumeOf(2), 0);
}

TEST_F(Engine, FileHeaderDecidesTheFrequency) {
    engine.Initialize_Engine();
    engine.LoadWavToChannel(3, folder.path() + "\\fast.wav");
    std::int32_t hertz = 0;
    engine.GetFrequency(3, hertz);
    EXPECT_EQ(hertz, 11025);
}

TEST_F(Engine, ValuesOutsideThePlatformsRangeChangeNothing) {
    openAndLoad(1);
    engine.SetVolume(1, 1);
    engine.SetVolume(1, -10001);
    engine.SetPan(1, 10001);
    engine.SetFrequency(1, 0);
    std::int32_t pan = 1, hertz = 1;
    engine.GetPan(1, pan);
    engine.GetFrequency(1, hertz);
    EXPECT_EQ(volumeOf(1), 0);
    EXPECT_EQ(pan, 0);
    EXPECT_EQ(hertz, 8000);
}

TEST_F(Engine, SetVolumeOnAnUnloadedChannelDoesNothing) {
    engine.Initialize_Engine();
    engine.SetVolume(1, -700);
    load(1);
    EXPECT_EQ(volumeOf(1), 0);
}

TEST_F(Engine, ChangeVolumeOnAnUnloadedChannelFailsSilently) {
    engine.ChangeVolume(8, -8820);
    engine.Initialize_Engine();
    engine.ChangeVolume(8, -8820);
    load(8);
    EXPECT_EQ(volumeOf(8), 0);
    engine.ChangeVolume(8, -8820);
    EXPECT_EQ(volumeOf(8), -8820);
}

TEST_F(Engine, ChannelsOutsideOneToNineDoNothing) {
    engine.Initialize_Engine();
    for (const std::int16_t channel : Shorts{-32768, -1, 0, 10, 32767}) {
        load(channel);
        engine.SetVolume(channel, -700);
        engine.PlayDXSound(channel, false);
        engine.PlayEcho(channel, 2, 5);
        engine.ChangeVolume(channel, -700);
        engine.StopDXSound(channel);
        engine.ClearBuffer(channel);
        EXPECT_EQ(volumeOf(channel), 12345);
    }
    EXPECT_EQ(device.buffers(), 0U);
    EXPECT_TRUE(device.played.empty());
}

TEST_F(Engine, FailedLoadKeepsWhatTheChannelHolds) {
    openAndLoad(1);
    engine.SetVolume(1, -700);
    engine.LoadWavToChannel(1, folder.path() + "\\missing.wav");
    engine.LoadWavToChannel(1, folder.path() + "\\broken.wav");
    EXPECT_EQ(volumeOf(1), -700);
}

TEST_F(Engine, FailedLoadAfterClearLeavesTheChannelUnloaded) {
    openAndLoad(1);
    engine.ClearBuffer(1);
    engine.LoadWavToChannel(1, folder.path() + "\\missing.wav");
    engine.PlayDXSound(1, false);
    engine.PlayEcho(1, 2, 5);
    EXPECT_TRUE(device.played.empty());
    EXPECT_TRUE(loop.waits.empty());
    EXPECT_EQ(volumeOf(1), 12345);
}

TEST_F(Engine, LoadingAgainReleasesTheOldBuffer) {
    openAndLoad(1);
    load(1);
    EXPECT_EQ(device.buffers(), 1U);
}

TEST_F(Engine, ClearBufferReleases) {
    openAndLoad(1);
    engine.ClearBuffer(1);
    EXPECT_EQ(device.buffers(), 0U);
    EXPECT_EQ(volumeOf(1), 12345);
}

TEST_F(Engine, PlaysWithAndWithoutLoop) {
    openAndLoad(8);
    engine.PlayDXSound(8, true);
    engine.PlayDXSound(8, false);
    ASSERT_EQ(device.played.size(), 2U);
    EXPECT_TRUE(device.played[0].second);
    EXPECT_FALSE(device.played[1].second);
    engine.StopDXSound(8);
    EXPECT_EQ(device.stopped, std::vector{device.played[0].first});
}

TEST_F(Engine, EchoWithCountFivePlaysThreeDuplicates) {
    openAndLoad(1);
    engine.PlayEcho(1, 5, 10);
    EXPECT_EQ(device.duplicates, 3);
    EXPECT_EQ(device.played.size(), 3U);
    EXPECT_EQ(loop.waits, (Waits{10, 20, 30}));
}

TEST_F(Engine, EchoWithDelayZeroWaitsFiftyHundredAndHundredFifty) {
    openAndLoad(1);
    engine.PlayEcho(1, 3, 0);
    EXPECT_EQ(loop.waits, (Waits{50, 100, 150}));
}

TEST_F(Engine, EchoPlaysItsDuplicatesOnceAndNeverTheChannelItself) {
    engine.Initialize_Engine();
    load(1);
    engine.PlayDXSound(1, true);
    const SoundBuffer own = device.played[0].first;
    engine.PlayEcho(1, 2, 5);
    ASSERT_EQ(device.played.size(), 3U);
    for (std::size_t i = 1; i < 3; ++i) {
        EXPECT_NE(device.played[i].first, own);
        EXPECT_FALSE(device.played[i].second);
    }
    EXPECT_EQ(loop.waits, (Waits{5, 10}));
}

TEST_F(Engine, EchoHasTheSettingsOfItsChannel) {
    openAndLoad(1);
    engine.SetPan(1, -9000);
    engine.SetVolume(1, -500);
    engine.SetFrequency(1, 7500);
    engine.PlayEcho(1, 1, 5);
    const SoundBuffer echo = device.played.at(0).first;
    EXPECT_EQ(device.pan(echo), -9000);
    EXPECT_EQ(device.volume(echo), -500);
    EXPECT_EQ(device.frequency(echo), 7500);
}

TEST_F(Engine, EchoOfACountBelowOneIsNone) {
    openAndLoad(1);
    engine.PlayEcho(1, 0, 5);
    engine.PlayEcho(1, -3, 5);
    EXPECT_TRUE(device.played.empty());
}

TEST_F(Engine, EchoWithANegativeDelayDoesNotWait) {
    openAndLoad(1);
    engine.PlayEcho(1, 3, -5);
    EXPECT_EQ(device.played.size(), 3U);
    EXPECT_TRUE(loop.waits.empty());
}

TEST_F(Engine, EchoEndsWhenAnEventClearsItsChannel) {
    openAndLoad(1);
    loop.inWait = [&] { engine.ClearBuffer(1); };
    engine.PlayEcho(1, 3, 5);
    EXPECT_EQ(device.played.size(), 1U);
    EXPECT_EQ(loop.waits, Waits{5});
}

TEST_F(Engine, EchoEndsWhenAnEventTerminatesTheEngine) {
    openAndLoad(1);
    loop.inWait = [&] { engine.Terminate_Engine(); };
    engine.PlayEcho(1, 3, 5);
    EXPECT_EQ(device.buffers(), 0U);
    EXPECT_EQ(loop.waits, Waits{5});
}

TEST_F(Engine, EventsMayStartAnotherEchoInTheWaits) {
    openAndLoad(1);
    load(2);
    loop.inWait = [&] {
        loop.inWait = nullptr;
        engine.PlayEcho(2, 1, 7);
    };
    engine.PlayEcho(1, 2, 5);
    EXPECT_EQ(loop.waits, (Waits{5, 7, 10}));
    EXPECT_EQ(device.played.size(), 3U);
}

TEST_F(Engine, EchoesDoNotPileUp) {
    openAndLoad(1);
    for (int i = 0; i < 10; ++i) engine.PlayEcho(1, 3, 5);
    EXPECT_EQ(device.buffers(), 4U);
}

TEST_F(Engine, TerminateReleasesChannelsAndEchoesThenTheDevice) {
    openAndLoad(1);
    load(9);
    engine.PlayEcho(1, 3, 5);
    engine.Terminate_Engine();
    EXPECT_EQ(device.buffers(), 0U);
    EXPECT_EQ(device.closed, 1);
    load(1);
    EXPECT_EQ(volumeOf(1), 12345);
}

TEST_F(Engine, ReadableVolumeIsZeroForEveryVolumeOfTheRange) {
    for (const std::int32_t volume : {-10000, -3000, -2000, -1, 0, 1}) {
        std::string text = "before";
        engine.GetReadableVolume(volume, text);
        EXPECT_EQ(text, "0") << volume;
    }
}

TEST_F(Engine, ReadableVolumeBelowTheRangeIsEmpty) {
    std::string text = "before";
    engine.GetReadableVolume(-10001, text);
    EXPECT_EQ(text, "");
}

TEST_F(Engine, SpeakerNamesSetTheirValuesWhateverTheCase) {
    const std::pair<const char*, std::int32_t> cases[] = {
        {"headphone", 1}, {"stereo", 4}, {"mono", 2}, {"surround", 5}, {"quad", 3},
        {"SURROUND", 5},  {"Mono", 2},   {"", 4},     {"5.1", 4},
    };
    for (const auto& [name, value] : cases) {
        engine.SetSpeakerConfig(name);
        EXPECT_EQ(device.speakers(), value) << name;
    }
}

TEST_F(Engine, SpeakerValuesReadAsTheirTexts) {
    const std::pair<std::int32_t, const char*> cases[] = {
        {1, "Speakers are set to: [Headphone]"},
        {2, "Speakers are set to: [Mono]"},
        {3, "Speakers are set to: [Quadraphonic]"},
        {4, "Speakers are set to: [Stereo]"},
        {5, "Speakers are set to: [Surround]"},
        {0, ""},
        {6, ""},
    };
    for (const auto& [value, expected] : cases) {
        device.setSpeakers(value);
        std::string text = "before";
        engine.GetSpeakerConfig(text);
        EXPECT_EQ(text, expected) << value;
    }
}

TEST_F(Engine, PauseWaitsItsLength) {
    engine.Pause(250);
    engine.Pause(0);
    EXPECT_EQ(loop.waits, Waits{250});
}

} // namespace
} // namespace gatewise::sound_test
