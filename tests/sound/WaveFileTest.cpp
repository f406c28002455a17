#include "SoundFixture.h"

#include "sound/WaveFile.h"

namespace gatewise::sound_test {
namespace {

TEST(WaveFile, ReadsEightBitMono) {
    const auto sound = readWave(waveOf({0x80, 0x90, 0x70}));
    ASSERT_TRUE(sound);
    EXPECT_EQ(sound->channels, 1);
    EXPECT_EQ(sound->bits, 8);
    EXPECT_EQ(sound->rate, 8000);
    EXPECT_EQ(sound->samples, (Bytes{0x80, 0x90, 0x70}));
}

TEST(WaveFile, ReadsSixteenBitStereoInWholeFrames) {
    const auto sound = readWave(waveOf({1, 2, 3, 4, 5, 6, 7}, 2, 22050, 16));
    ASSERT_TRUE(sound);
    EXPECT_EQ(sound->rate, 22050);
    EXPECT_EQ(sound->samples, (Bytes{1, 2, 3, 4}));
}

TEST(WaveFile, PassesOverOtherChunksAndTheirPadding) {
    Bytes file = waveOf({0x80, 0x81});
    Bytes extra;
    appendText(extra, "LIST");
    appendField(extra, std::uint32_t{3});
    appendText(extra, "abc");
    extra.push_back(0);
    file.insert(file.begin() + 36, extra.begin(), extra.end());
    const auto sound = readWave(file);
    ASSERT_TRUE(sound);
    EXPECT_EQ(sound->samples, (Bytes{0x80, 0x81}));
}

TEST(WaveFile, SoundEndsWithTheFileWhateverTheHeaderClaims) {
    Bytes file = waveOf({0x80, 0x81, 0x82});
    for (std::size_t i = 40; i < 44; ++i) file[i] = 0xFF;
    const auto sound = readWave(file);
    ASSERT_TRUE(sound);
    EXPECT_EQ(sound->samples.size(), 3U);
}

TEST(WaveFile, SoundEndsWhereTheHeaderSaysInALongerFile) {
    Bytes file = waveOf({0x80, 0x81, 0x82});
    file[40] = 2;
    EXPECT_EQ(readWave(file)->samples.size(), 2U);
}

TEST(WaveFile, HeadTellsWhereTheSamplesOfALongerFileLie) {
    const Bytes file = waveOf({1, 2, 3, 4, 5, 6, 7}, 2, 22050, 16);
    const auto head = readWaveHead(ByteView(file).first(44), file.size());
    ASSERT_TRUE(head);
    EXPECT_EQ(head->rate, 22050);
    EXPECT_EQ(head->start, 44U);
    EXPECT_EQ(head->size, 4U) << "whole frames";
    for (std::size_t size = 0; size < 44; ++size)
        EXPECT_FALSE(readWaveHead(ByteView(file).first(size), file.size())) << size;
    EXPECT_FALSE(readWaveHead(ByteView(file).first(44), 44)) << "a file that ends before them";
    EXPECT_EQ(readWaveHead(file, 1 << 20)->size, 4U) << "no more than it claims";
}

TEST(WaveFile, EveryShorterFileIsRefusedOrCutWithoutHarm) {
    const Bytes whole = waveOf({0x80, 0x81, 0x82});
    for (std::size_t size = 0; size <= whole.size(); ++size) {
        const auto sound = readWave(ByteView(whole).first(size));
        EXPECT_EQ(sound.has_value(), size > 44) << size;
    }
}

TEST(WaveFile, RefusesWhatItCannotPlay) {
    const Bytes data(8, 0x80);
    EXPECT_FALSE(readWave(waveOf({})));
    EXPECT_FALSE(readWave(waveOf(data, 0)));
    EXPECT_FALSE(readWave(waveOf(data, 3)));
    EXPECT_FALSE(readWave(waveOf(data, 1, 99)));
    EXPECT_TRUE(readWave(waveOf(data, 1, 100)));
    EXPECT_TRUE(readWave(waveOf(data, 1, 100000)));
    EXPECT_FALSE(readWave(waveOf(data, 1, 100001)));
    EXPECT_FALSE(readWave(waveOf(data, 1, 8000, 24)));
    EXPECT_FALSE(readWave(waveOf({1}, 1, 8000, 16)));
    for (const std::size_t at : {0U, 8U, 12U, 20U, 36U}) {
        Bytes file = waveOf(data);
        file[at] = 0x55;
        EXPECT_FALSE(readWave(file)) << at;
    }
}

TEST(WaveFile, RefusesSoundBeforeItsFormat) {
    Bytes file;
    appendText(file, "RIFF....WAVEdata");
    appendField(file, std::uint32_t{2});
    file.insert(file.end(), {0x80, 0x80});
    const Bytes rest = waveOf({0x80});
    file.insert(file.end(), rest.begin() + 12, rest.end());
    EXPECT_FALSE(readWave(file));
}

TEST(WaveFile, ChunkOfTheGreatestSizeEndsTheSearch) {
    Bytes file = waveOf({0x80});
    file[36] = 'x';
    for (std::size_t i = 40; i < 44; ++i) file[i] = 0xFF;
    EXPECT_FALSE(readWave(file));
}

} // namespace
} // namespace gatewise::sound_test
