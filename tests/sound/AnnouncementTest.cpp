#include "SoundFixture.h"

#include "sound/Announcements.h"
#include "sound/GateSpeech.h"

namespace gatewise::sound_test {
namespace {

using Lines = std::vector<std::string>;

/// A program folder whose recordings each hold a mark and one sample to be covered, so that a joined file
/// spells the order of its pieces.
class Announcing : public testing::Test {
protected:
    Announcing() {
        listener.folder = folder.path();
        device.log = &listener;
        folder.write("Wavs/Announcements.wav", waveOf({0x80, 0x80}));
        for (int i = 1; i <= 11; ++i) record("ann" + std::to_string(i), static_cast<std::uint8_t>(i));
        record("welcome", 'W');
        for (const char* number : {"0", "12", "10", "7"}) record(number, kFirst);
        for (const char* number : {"05", "34", "00"}) record(number, kLast);
        record("Airlines/dl", 'D');
        record("Cities/atl", 'A');
        engine.Initialize_Engine();
        listener.lines.clear();
    }
    void record(const std::string& name, std::uint8_t mark) {
        for (const char* voice : {"Male", "Female"})
            folder.write("Wavs/" + std::string(voice) + "/" + name + ".wav", waveOf({mark, 0xFF}));
    }
    void announce(const std::string& flight, std::int16_t kind, const std::string& city = "ATL") {
        PlayAnnouncement(engine, folder.path(), {.flightKey = flight, .kind = kind, .city = city}, flags);
    }
    /// The marks of a joined file; the sample that ends it left out.
    Bytes marks(const std::string& name) {
        const Bytes file = folder.bytes("Wavs/" + name);
        if (file.size() < 45) return {};
        return {file.begin() + 44, file.end() - 1};
    }
    bool chimeAlone() {
        return listener.lines == Lines{"ClearBuffer 7", "LoadWavToChannel 7 \\Wavs\\Announcements.wav",
                                       "SetPan 7 0", "SetVolume 7 0", "PlayDXSound 7 false"};
    }

    static constexpr std::uint8_t kFirst = 'F', kLast = 'L';
    test::TempFolder folder;
    Listener listener;
    WatchedDevice device;
    ScriptedLoop loop;
    DS_Engine engine{device, loop};
    AnnouncementFlags flags{};
};

TEST_F(Announcing, SentencesOfTheSixKinds) {
    const Bytes sentences[] = {
        {1, 'D', 'F', 'L', 10, 'A', 3}, {4, 'D', 'F', 'L', 10, 'A'}, {5, 'D', 'F', 'L', 10, 'A'},
        {1, 'D', 'F', 'L', 11, 'A', 7}, {'D', 'F', 'L', 11, 'A', 6}, {8, 'D', 'F', 'L', 11, 'A', 9},
    };
    for (std::int16_t kind = 1; kind <= 6; ++kind) {
        announce("DL 1234", kind);
        EXPECT_EQ(marks("tmp" + std::to_string(kind) + ".wav"), sentences[kind - 1]) << kind;
        EXPECT_EQ(flags[static_cast<std::size_t>(kind - 1)], -1) << kind;
    }
}

TEST_F(Announcing, StepsInOrderWithoutEcho) {
    PlayAnnouncement(engine, folder.path(),
                     {.flightKey = "DL 1234",
                      .kind = 2,
                      .city = "ATL",
                      .pan = 9000,
                      .volume = -500,
                      .echo = 0,
                      .frequency = 7500,
                      .voice = 10},
                     flags);
    EXPECT_EQ(listener.lines, (Lines{"ClearBuffer 7", "LoadWavToChannel 7 \\Wavs\\Announcements.wav",
                                     "SetPan 7 9000", "SetVolume 7 -500", "PlayDXSound 7 false",
                                     "ClearBuffer 2", "LoadWavToChannel 2 \\Wavs\\tmp2.wav", "SetPan 2 9000",
                                     "SetVolume 2 -500", "SetFrequency 2 7500", "PlayDXSound 2 false"}));
    EXPECT_EQ(flags, (AnnouncementFlags{0, -1, 0, 0, 0, 0}));
}

TEST_F(Announcing, EchoPlaysTwoDuplicatesFiveApart) {
    PlayAnnouncement(engine, folder.path(), {.flightKey = "DL 1234", .kind = 1, .city = "ATL", .echo = 1},
                     flags);
    EXPECT_EQ(listener.lines.back(), "PlayEcho 1 2 5");
    EXPECT_EQ(loop.waits, (std::vector<std::int64_t>{5, 10}));
    EXPECT_EQ(flags[0], -1);
}

TEST_F(Announcing, EchoOfAnyOtherValueIsNone) {
    for (const std::int16_t echo : Shorts{-1, 2}) {
        PlayAnnouncement(engine, folder.path(),
                         {.flightKey = "DL 1234", .kind = 1, .city = "ATL", .echo = echo}, flags);
        EXPECT_EQ(listener.lines.back(), "PlayDXSound 1 false");
    }
}

TEST_F(Announcing, VoiceFromElevenOnIsMale) {
    folder.write("Wavs/Male/ann4.wav", waveOf({'M', 0xFF}));
    const std::pair<std::int16_t, std::uint8_t> cases[] = {{1, 4}, {10, 4}, {11, 'M'}, {20, 'M'}};
    for (const auto& [voice, opening] : cases) {
        PlayAnnouncement(engine, folder.path(),
                         {.flightKey = "DL 1234", .kind = 2, .city = "ATL", .voice = voice}, flags);
        EXPECT_EQ(marks("tmp2.wav").at(0), opening) << voice;
    }
}

TEST_F(Announcing, OldTargetIsReplacedWhole) {
    folder.write("Wavs/tmp2.wav", Bytes(5000, 0x11));
    announce("DL 1234", 2);
    EXPECT_EQ(folder.bytes("Wavs/tmp2.wav").size(), 44U + 7U);
}

TEST_F(Announcing, AirportWithoutRecordingGivesZeroTwiceAndNoLinkingWord) {
    record("0", 'Z');
    announce("DL 1234", 1, "QQQ");
    EXPECT_EQ(marks("tmp1.wav"), (Bytes{1, 'D', 'F', 'L', 'Z', 'Z', 3}));
    announce("DL 1234", 6, "");
    EXPECT_EQ(marks("tmp6.wav"), (Bytes{8, 'D', 'F', 'L', 'Z', 'Z', 9}));
}

TEST_F(Announcing, AirlineWithoutRecordingUsesTheSecondPhrase) {
    announce("ZZ 1234", 1);
    EXPECT_EQ(marks("tmp1.wav"), (Bytes{1, 2, 'F', 'L', 10, 'A', 3}));
}

TEST_F(Announcing, KeysAreTrimmedAndLowerCased) {
    record("Airlines/b6x", 'B');
    announce("B6X1234", 2, " Atl");
    EXPECT_EQ(marks("tmp2.wav"), (Bytes{4, 'B', 'F', 'L', 10, 'A'}));
}

TEST_F(Announcing, MissingNumberSoundsTheChimeAloneAndLeavesAnEmptyFile) {
    announce("DL 7734", 1); // there is no 77
    EXPECT_TRUE(chimeAlone());
    EXPECT_EQ(flags[0], 0);
    EXPECT_TRUE(folder.has("Wavs/Female/77.wav"));
    EXPECT_TRUE(folder.bytes("Wavs/Female/77.wav").empty());
    EXPECT_FALSE(folder.has("Wavs/tmp1.wav"));
    EXPECT_FALSE(folder.has("Wavs/Male/77.wav"));
}

TEST_F(Announcing, FailureDeletesTheOldTargetAllTheSame) {
    folder.write("Wavs/tmp1.wav", waveOf({1, 2}));
    announce("DL 7734", 1);
    EXPECT_FALSE(folder.has("Wavs/tmp1.wav"));
}

TEST_F(Announcing, EmptyCityRecordingEndsTheAnnouncement) {
    folder.write("Wavs/Female/Cities/atl.wav", Bytes());
    announce("DL 1234", 1);
    EXPECT_TRUE(chimeAlone());
    EXPECT_EQ(flags[0], 0);
}

TEST_F(Announcing, FlightWithoutANumberSoundsTheChimeAlone) {
    for (const char* flight : {"DL ", "", "DL", "DL ABCD", "DL 99999"}) {
        listener.lines.clear();
        announce(flight, 1);
        EXPECT_TRUE(chimeAlone()) << flight;
    }
    EXPECT_EQ(flags[0], 0);
}

TEST_F(Announcing, KindsOutsideOneToSixDoNothing) {
    for (const std::int16_t kind : Shorts{-1, 0, 7, 99}) announce("DL 1234", kind);
    EXPECT_TRUE(listener.lines.empty());
}

TEST_F(Announcing, GoesOnWithoutADevice) {
    device.opens = false;
    engine.Initialize_Engine();
    announce("DL 1234", 1);
    EXPECT_EQ(flags[0], -1);
    EXPECT_TRUE(folder.has("Wavs/tmp1.wav"));
}

TEST_F(Announcing, MissingChimeDoesNotStopTheAnnouncement) {
    std::filesystem::remove(folder / "Wavs/Announcements.wav");
    announce("DL 1234", 1);
    EXPECT_EQ(flags[0], -1);
    EXPECT_EQ(device.played.size(), 1U);
}

TEST_F(Announcing, WelcomeIsJoinedAndPlayedPlainly) {
    PlayWelcome(engine, folder.path(), "DL 1234", 99, "ATL");
    EXPECT_EQ(marks("tmp.wav"), (Bytes{'W', 'D', 'F', 'L', 10, 'A'}));
    EXPECT_EQ(listener.lines,
              (Lines{"ClearBuffer 9", "LoadWavToChannel 9 \\Wavs\\tmp.wav", "PlayDXSound 9 false"}));
}

TEST_F(Announcing, WelcomeFallsBackLikeAnAnnouncement) {
    PlayWelcome(engine, folder.path(), "ZZ 5", 99, "QQQ");
    EXPECT_EQ(marks("tmp.wav"), (Bytes{'W', 2, 'F', 'L', 'F', 'F'}));
}

TEST_F(Announcing, WelcomeIsOfTheFemaleVoice) {
    std::filesystem::remove_all(folder / "Wavs/Male");
    PlayWelcome(engine, folder.path(), "DL 1234", 99, "ATL");
    EXPECT_EQ(listener.lines.size(), 3U);
}

TEST_F(Announcing, WelcomeOfAnotherKindDoesNothing) {
    for (const std::int16_t kind : Shorts{0, 1, 98, 100})
        PlayWelcome(engine, folder.path(), "DL 1234", kind, "ATL");
    EXPECT_TRUE(listener.lines.empty());
    EXPECT_FALSE(folder.has("Wavs/tmp.wav"));
}

TEST_F(Announcing, WelcomeWithAMissingRecordingIsSilent) {
    std::filesystem::remove(folder / "Wavs/Female/welcome.wav");
    PlayWelcome(engine, folder.path(), "DL 1234", 99, "ATL");
    EXPECT_TRUE(listener.lines.empty());
    EXPECT_TRUE(folder.bytes("Wavs/Female/welcome.wav").empty());
    EXPECT_TRUE(folder.has("Wavs/Female/welcome.wav"));
}

TEST(SpokenFlightText, SplitsIntoFirstAndLastDigits) {
    struct Case {
        const char *flight, *airline, *first, *last;
    };
    const Case cases[] = {
        {"DL 5", "DL ", "0", "05"},      {"DL 0005", "DL ", "0", "05"},    {"DL 1234", "DL ", "12", "34"},
        {"DL 1005", "DL ", "10", "05"},  {"DL 1000", "DL ", "10", "00"},   {"DL 0", "DL ", "0", "00"},
        {"B6X0734", "B6X", "7", "34"},   {"DL 12345", "DL ", "12", "45"},  {"DL   5", "DL ", "0", "05"},
        {"DL 32767", "DL ", "32", "67"}, {"DL -32768", "DL ", "-3", "68"},
    };
    for (const Case& c : cases) {
        const auto split = splitFlight(c.flight);
        ASSERT_TRUE(split) << c.flight;
        EXPECT_EQ(split->airline, c.airline) << c.flight;
        EXPECT_EQ(split->firstDigits, c.first) << c.flight;
        EXPECT_EQ(split->lastDigits, c.last) << c.flight;
    }
    EXPECT_FALSE(splitFlight("DL 32768"));
    EXPECT_FALSE(splitFlight("DL -32769"));
}

} // namespace
} // namespace gatewise::sound_test
