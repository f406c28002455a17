#include "SoundFixture.h"

#include "sound/WaveFile.h"
#include "sound/WaveJoiner.h"

namespace gatewise::sound_test {
namespace {

class Joiner : public testing::Test {
protected:
    std::string piece(const std::string& name) { return folder.path() + "\\" + name; }
    bool join(const std::vector<std::string>& names) {
        std::vector<std::string> paths;
        paths.reserve(names.size());
        for (const auto& name : names) paths.push_back(piece(name));
        return joinWaves(paths, piece("out.wav"));
    }
    test::TempFolder folder;
};

TEST_F(Joiner, EachPieceBeginsOnTheLastByteOfTheOneBefore) {
    folder.write("a.wav", waveOf({0xA1, 0xA2, 0xA3, 0xA4}));
    folder.write("b.wav", waveOf({0xB1, 0xB2, 0xB3}));
    folder.write("c.wav", waveOf({0xC1, 0xC2}));
    ASSERT_TRUE(join({"a.wav", "b.wav", "c.wav"}));
    // 3 + 2 + 1 counted, 7 written
    const Bytes expected = {'R',  'I',  'F',  'F',  42,   0,    0,   0, 'W', 'A', 'V', 'E',  'f', //
                            'm',  't',  ' ',  16,   0,    0,    0,   1, 0,   1,   0,   0x40, 0x1F,
                            0,    0,    0x40, 0x1F, 0,    0,    1,   0, 8,   0,   'd', 'a',  't',
                            'a',  6,    0,    0,    0, //
                            0xA1, 0xA2, 0xA3, 0xB1, 0xB2, 0xC1, 0xC2};
    EXPECT_EQ(folder.bytes("out.wav"), expected);
}

TEST_F(Joiner, PieceOfOneSampleIsCoveredWhole) {
    folder.write("a.wav", waveOf({0xA1}));
    folder.write("b.wav", waveOf({0xB1, 0xB2}));
    ASSERT_TRUE(join({"a.wav", "b.wav"}));
    const Bytes out = folder.bytes("out.wav");
    EXPECT_EQ(Bytes(out.begin() + 44, out.end()), (Bytes{0xB1, 0xB2}));
    EXPECT_EQ(out[40], 1);
}

TEST_F(Joiner, SevenPiecesOf1045BytesMake7000In7045) {
    folder.write("a.wav", waveOf(Bytes(1001, 0x80)));
    ASSERT_TRUE(join({"a.wav", "a.wav", "a.wav", "a.wav", "a.wav", "a.wav", "a.wav"}));
    const Bytes out = folder.bytes("out.wav");
    EXPECT_EQ(out.size(), 7045U);
    EXPECT_EQ(numberAt<std::int32_t>(out, 40), 7000);
    EXPECT_EQ(numberAt<std::int32_t>(out, 4), 7036);
}

TEST_F(Joiner, HeadersOfThePiecesAreNotRead) {
    Bytes odd(44, 0x55);
    odd.insert(odd.end(), {1, 2, 3});
    folder.write("a.wav", odd);
    ASSERT_TRUE(join({"a.wav"}));
    const Bytes out = folder.bytes("out.wav");
    EXPECT_EQ(Bytes(out.begin() + 44, out.end()), (Bytes{1, 2, 3}));
    EXPECT_EQ(numberAt<std::int32_t>(out, 40), 2);
    EXPECT_EQ(readWave(out)->samples, (Bytes{1, 2}));
}

TEST_F(Joiner, MissingRecordingsStayBehindEmptyAndThereIsNoTarget) {
    folder.write("a.wav", waveOf({1, 2}));
    EXPECT_FALSE(join({"x.wav", "a.wav", "y.wav"}));
    EXPECT_TRUE(folder.has("x.wav"));
    EXPECT_TRUE(folder.has("y.wav"));
    EXPECT_TRUE(folder.bytes("x.wav").empty());
    EXPECT_TRUE(folder.bytes("y.wav").empty());
    EXPECT_FALSE(folder.has("out.wav"));
    EXPECT_FALSE(join({"x.wav", "a.wav"})) << "an empty recording fails again";
}

TEST_F(Joiner, RecordingWithoutASampleFails) {
    folder.write("a.wav", Bytes(44, 0));
    folder.write("b.wav", Bytes(43, 0));
    EXPECT_FALSE(join({"a.wav"}));
    EXPECT_FALSE(join({"b.wav"}));
    EXPECT_FALSE(folder.has("out.wav"));
}

TEST_F(Joiner, MissingFolderFailsWithoutMakingIt) {
    EXPECT_FALSE(joinWaves(std::vector{piece("none\\a.wav")}, piece("out.wav")));
    EXPECT_FALSE(folder.has("none"));
}

TEST_F(Joiner, ARecordingOfAHeaderAloneFailsByItself) {
    folder.write("a.wav", Bytes(44, 0));
    EXPECT_FALSE(join({"a.wav"}));
    EXPECT_FALSE(folder.has("out.wav"));
}

TEST_F(Joiner, FolderInPlaceOfARecordingFails) {
    std::filesystem::create_directory(folder / "a.wav");
    EXPECT_FALSE(join({"a.wav"}));
}

TEST_F(Joiner, TargetThatCannotBeWrittenFails) {
    folder.write("a.wav", waveOf({1, 2}));
    EXPECT_FALSE(joinWaves(std::vector{piece("a.wav")}, piece("none\\out.wav")));
}

TEST_F(Joiner, WhatCouldNotBeWrittenWholeIsGone) {
    folder.write("a.wav", waveOf({1, 2}));
    std::filesystem::create_symlink("/dev/full", folder / "out.wav"); // takes a file and not one byte
    EXPECT_FALSE(join({"a.wav"}));
    EXPECT_FALSE(std::filesystem::is_symlink(folder / "out.wav"));
}

} // namespace
} // namespace gatewise::sound_test
