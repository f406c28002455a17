#include "Loopback.h"

#include "Tone.h"
#include "sound/DS_Engine.h"

namespace gatewise::sound_test {
namespace {

Bytes tone16(int samples, int rate) {
    Bytes out;
    for (int i = 0; i < samples; ++i)
        appendField(out, static_cast<std::int16_t>(
                             std::lround(16384 * std::sin(2 * std::numbers::pi * kTone * i / rate))));
    return out;
}

class Heard : public testing::Test {
protected:
    Heard() {
        folder.write("tone.wav", waveOf(tone(16000)));
        Bytes click(200, 0x80);
        click[0] = 0xF0, click[1] = 0xF0;
        folder.write("click.wav", waveOf(click));
    }
    void SetUp() override { ASSERT_TRUE(opens(device)) << "the library has no loopback device"; }
    SoundBuffer load(const std::string& name) { return device.load(folder.path() + "\\" + name); }
    /// Levels of the two sides in dB under full scale, once the first moments are over.
    std::pair<double, double> levels() {
        render(device, 4800);
        const Rendered heard = render(device, 9600);
        return {decibels(amplitudeAt(heard.left, kTone, 0, 9600)),
                decibels(amplitudeAt(heard.right, kTone, 0, 9600))};
    }

    test::TempFolder folder;
    OpenAlDevice device{loopbackRoad()};
};

TEST_F(Heard, ToneComesBackAtItsOwnLevelOnBothSides) {
    device.play(load("tone.wav"), true);
    const auto [left, right] = levels();
    EXPECT_NEAR(left, decibels(0.5), 0.5);
    EXPECT_NEAR(right, decibels(0.5), 0.5);
}

TEST_F(Heard, VolumeIsInHundredthsOfADecibel) {
    const SoundBuffer buffer = load("tone.wav");
    device.play(buffer, true);
    for (const int volume : {0, -90, -500, -1000, -3000, -6000}) {
        device.setVolume(buffer, volume);
        const auto [left, right] = levels();
        EXPECT_NEAR(left, decibels(0.5) + volume / 100.0, 0.5) << volume;
        EXPECT_NEAR(right, decibels(0.5) + volume / 100.0, 0.5) << volume;
    }
}

TEST_F(Heard, LowestVolumesCannotBeHeard) {
    const SoundBuffer buffer = load("tone.wav");
    device.play(buffer, true);
    for (const int volume : {-9000, -10000}) {
        device.setVolume(buffer, volume);
        EXPECT_LT(levels().first, -90) << volume;
    }
}

TEST_F(Heard, PanLowersTheFarSideAlone) {
    const SoundBuffer buffer = load("tone.wav");
    device.play(buffer, true);
    for (const int pan : {600, 2000, 4000}) {
        device.setPan(buffer, pan);
        const auto [left, right] = levels();
        EXPECT_NEAR(right, decibels(0.5), 0.5) << pan;
        EXPECT_NEAR(left, decibels(0.5) - pan / 100.0, 0.5) << pan;
        device.setPan(buffer, -pan);
        const auto [nearSide, farSide] = levels();
        EXPECT_NEAR(nearSide, decibels(0.5), 0.5) << pan;
        EXPECT_NEAR(farSide, decibels(0.5) - pan / 100.0, 0.5) << pan;
    }
}

TEST_F(Heard, PanOfNinetyDecibelsIsOneSideOnly) {
    const SoundBuffer buffer = load("tone.wav");
    device.setPan(buffer, 9000);
    device.setVolume(buffer, -500);
    device.play(buffer, true);
    const auto [left, right] = levels();
    EXPECT_NEAR(right, decibels(0.5) - 5, 0.5);
    EXPECT_LT(left, -90);
}

TEST_F(Heard, FrequencyIsThePlaybackRate) {
    const SoundBuffer buffer = load("tone.wav");
    device.play(buffer, true);
    for (const int hertz : {8000, 7500, 8300, 4000, 16000}) {
        device.setFrequency(buffer, hertz);
        render(device, 4800);
        const Rendered heard = render(device, kRate);
        const double expected = kTone * hertz / 8000;
        EXPECT_NEAR(frequencyOf(heard.left, 0, heard.left.size()), expected, expected * 0.005) << hertz;
    }
}

TEST_F(Heard, BothSidesStayTogetherThroughChangesOfRate) {
    const SoundBuffer buffer = load("tone.wav");
    device.play(buffer, true);
    for (int i = 0; i < 20; ++i) {
        device.setFrequency(buffer, i % 2 == 0 ? 7500 : 8300);
        render(device, 777);
    }
    const Rendered heard = render(device, 4800);
    for (std::size_t i = 0; i < heard.left.size(); ++i)
        ASSERT_NEAR(heard.left[i], heard.right[i], 1e-6F) << i;
}

TEST_F(Heard, SixteenBitFileOfAnotherRateSoundsAtItsOwn) {
    folder.write("wide.wav", waveOf(tone16(22050, 22050), 1, 22050, 16));
    const SoundBuffer buffer = load("wide.wav");
    EXPECT_EQ(device.frequency(buffer), 22050);
    device.play(buffer, true);
    render(device, 4800);
    const Rendered heard = render(device, kRate / 2);
    EXPECT_NEAR(frequencyOf(heard.right, 0, heard.right.size()), kTone, kTone * 0.005);
    EXPECT_NEAR(decibels(amplitudeAt(heard.right, kTone, 0, 9600)), decibels(0.5), 0.5);
}

TEST_F(Heard, StereoFileKeepsItsSides) {
    Bytes data;
    for (const std::uint8_t sample : tone(8000)) data.push_back(sample), data.push_back(0x80);
    folder.write("left.wav", waveOf(data, 2));
    device.play(load("left.wav"), true);
    const auto [left, right] = levels();
    EXPECT_NEAR(left, decibels(0.5), 0.5);
    EXPECT_LT(right, -80);
}

TEST_F(Heard, SoundWithoutLoopRunsOutAtItsLength) {
    folder.write("short.wav", waveOf(tone(800))); // 100 ms
    device.play(load("short.wav"), false);
    const Rendered heard = renderMilliseconds(device, 300);
    EXPECT_GT(rms(heard.left, 4800 * 8 / 10, 480), 0.3);
    EXPECT_EQ(rms(heard.left, 4800 * 11 / 10, 4800), 0.0);
}

TEST_F(Heard, LoopGoesOnWithoutAGap) {
    folder.write("short.wav", waveOf(tone(800))); // 50 whole periods
    device.play(load("short.wav"), true);
    const Rendered heard = renderMilliseconds(device, 1050);
    // Each hundredth of a second is as loud as the next, the seams included.
    for (std::size_t from = 480; from + 480 <= heard.left.size(); from += 480)
        EXPECT_NEAR(decibels(rms(heard.left, from, 480)), decibels(0.5 / std::numbers::sqrt2), 0.5) << from;
    EXPECT_NEAR(frequencyOf(heard.left, 480, 48000), kTone, kTone * 0.005);
}

TEST_F(Heard, StopSilencesAndPlayBeginsAnew) {
    const SoundBuffer buffer = load("click.wav");
    device.play(buffer, true);
    render(device, 600);
    device.stop(buffer);
    render(device, 1200);
    EXPECT_EQ(rms(render(device, 4800).left, 0, 4800), 0.0);
    device.play(buffer, false);
    EXPECT_EQ(onsets(render(device, 2400).left, 0.2F, 240).size(), 1U);
}

TEST_F(Heard, PlayingAgainStartsFromTheBeginning) {
    const SoundBuffer buffer = load("click.wav");
    device.play(buffer, false);
    Rendered heard = renderMilliseconds(device, 10);
    device.play(buffer, false);
    append(heard, renderMilliseconds(device, 10));
    EXPECT_EQ(onsets(heard.left, 0.2F, 240).size(), 2U);
}

TEST_F(Heard, DuplicateOutlivesItsChannelAndSoundsLikeIt) {
    const SoundBuffer buffer = load("tone.wav");
    device.setPan(buffer, 2000);
    device.setVolume(buffer, -1000);
    const SoundBuffer copy = device.duplicate(buffer);
    device.release(buffer);
    device.play(copy, true);
    const auto [left, right] = levels();
    EXPECT_NEAR(right, decibels(0.5) - 10, 0.5);
    EXPECT_NEAR(left, decibels(0.5) - 30, 0.5);
}

TEST_F(Heard, EchoesAreSpacedByOneTwoAndThreeDelays) {
    RenderingLoop loop(device);
    DS_Engine engine(device, loop);
    engine.Initialize_Engine();
    engine.LoadWavToChannel(1, folder.path() + "\\click.wav");
    engine.PlayEcho(1, 3, 40);
    append(loop.heard, renderMilliseconds(device, 100));
    const auto clicks = onsets(loop.heard.left, 0.2F, 480);
    ASSERT_EQ(clicks.size(), 3U);
    EXPECT_NEAR(static_cast<double>(clicks[1] - clicks[0]), 40.0 * kRate / 1000, kRate / 1000.0);
    EXPECT_NEAR(static_cast<double>(clicks[2] - clicks[1]), 80.0 * kRate / 1000, kRate / 1000.0);
    EXPECT_EQ(loop.heard.left.size(), static_cast<std::size_t>(kRate / 1000 * (40 + 80 + 120 + 100)));
}

TEST_F(Heard, AnnouncementsEchoIsFiveMillisecondsBehind) {
    RenderingLoop loop(device);
    DS_Engine engine(device, loop);
    engine.Initialize_Engine();
    engine.LoadWavToChannel(1, folder.path() + "\\click.wav");
    engine.PlayEcho(1, 2, 5);
    const auto clicks = onsets(loop.heard.left, 0.2F, 120);
    ASSERT_EQ(clicks.size(), 2U);
    EXPECT_NEAR(static_cast<double>(clicks[1] - clicks[0]), 5.0 * kRate / 1000, kRate / 2000.0);
}

TEST_F(Heard, NineChannelsSoundTogether) {
    RenderingLoop loop(device);
    DS_Engine engine(device, loop);
    engine.Initialize_Engine();
    for (std::int16_t channel = 1; channel <= 9; ++channel) {
        engine.LoadWavToChannel(channel, folder.path() + "\\tone.wav");
        engine.SetVolume(channel, -2000);
        engine.PlayDXSound(channel, true);
    }
    EXPECT_NEAR(levels().first, decibels(0.5 * 9) - 20, 0.5);
}

TEST_F(Heard, ClickPlaysBesideTheChannelsAndInPlaceOfTheLast) {
    PlaySoundA(device, folder.path() + "\\tone.wav");
    Rendered heard = renderMilliseconds(device, 50);
    EXPECT_GT(rms(heard.left, 480, 1440), 0.3);
    PlaySoundA(device, folder.path() + "\\click.wav");
    render(device, 4800);
    EXPECT_EQ(rms(render(device, 4800).left, 0, 4800), 0.0);
    PlaySoundA(device, folder.path() + "\\missing.wav");
}

TEST_F(Heard, ManyLoadsAndEchoesLeaveNothingBehind) {
    RenderingLoop loop(device);
    DS_Engine engine(device, loop);
    for (int i = 0; i < 500; ++i) {
        engine.Initialize_Engine();
        engine.ClearBuffer(1);
        engine.LoadWavToChannel(1, folder.path() + "\\click.wav");
        engine.PlayEcho(1, 3, 1);
        loop.heard = {};
    }
    // The library has room for 256 sources; more than a few of ours would have used it up.
    engine.PlayDXSound(1, false);
    EXPECT_EQ(onsets(renderMilliseconds(device, 20).left, 0.2F, 480).size(), 1U);
}

TEST_F(Heard, CloseAndOpenAgain) {
    device.play(load("tone.wav"), true);
    device.close();
    EXPECT_FALSE(device.output().ready());
    ASSERT_TRUE(opens(device));
    EXPECT_EQ(rms(render(device, 4800).left, 0, 4800), 0.0);
    device.play(load("tone.wav"), true);
    EXPECT_NEAR(levels().first, decibels(0.5), 0.5);
}

} // namespace
} // namespace gatewise::sound_test
