#include "announce/Hall.h"

#include "sound/AnnouncementScan.h"

#include <algorithm>

// The board's announcements as the pilot hears them.

namespace gatewise::test {
namespace {

using Lines = std::vector<std::string>;

const Lines kEngine = {"Initialize_Engine", "SetSpeakerConfig stereo", "GetSpeakerConfig"};

Lines operator+(Lines first, const Lines& second) {
    first.insert(first.end(), second.begin(), second.end());
    return first;
}

TEST_F(Hall, EmptyBoardAnnouncesNothingAndKeepsTheInterval) {
    departure(2330, 7); // from 22:30 on
    departure(0, 8);    // until 01:00
    open(1200, "Dept2=0\r\n");
    setTime(1200);
    t.p.session.schedule.BoardFlights.clear();
    setTime(1200);
    ASSERT_EQ(t.p.session.board.board.BoardRowCount, -1);
    for (int timer = 1; timer <= 3; ++timer) {
        playTimer(timer).setInterval(15000);
        sounds.lines.clear();
        tick(playTimer(timer));
        EXPECT_EQ(sounds.lines, Lines{}) << "not even the engine is started";
        EXPECT_EQ(playTimer(timer).interval(), 15000);
        EXPECT_TRUE(playTimer(timer).enabled);
    }
}

TEST_F(Hall, WindowsOfTheSixKindsHoldBothTheirEndsOnTheBoardsClock) {
    departure(1200, 10);
    departure(2300, 99); // keeps the board from being empty
    arrival(1200, 10);
    arrival(2300, 99);
    arrival(2301, 98);
    open(1130);
    // Minutes before the flight, written out here apart from the table that the program goes by.
    struct Due {
        std::int16_t timer;
        bool departing;
        int kind, from, to;
    };
    constexpr Due kDue[] = {
        {1, true, 1, 15, 19}, {2, true, 2, 5, 10},   {3, true, 3, 0, 3},
        {1, false, 4, 3, 8},  {3, false, 5, 11, 15}, {2, false, 6, 0, 2},
    };
    for (const Due& window : kDue) {
        if ((t.p.session.board.BoardMode == "departing") != window.departing)
            user::click(board.switchButton(1));
        ASSERT_EQ(t.p.session.board.BoardMode == "departing", window.departing);
        for (int minutes = -2; minutes <= 22; ++minutes) {
            const int now = 12 * 60 - minutes;
            setTime(now / 60 * 100 + now % 60);
            t.p.session.hall.AnnouncedDepartures = {};
            t.p.session.hall.AnnouncedArrivals = {};
            const bool due = minutes >= window.from && minutes <= window.to;
            EXPECT_EQ(play(window.timer), due ? std::to_string(window.kind) + " XX 0010" : "")
                << "kind " << window.kind << ", " << minutes << " minutes before";
        }
    }
}

TEST_F(Hall, OptionsStandInTheirCrossedOrder) {
    departure(1200, 10);
    arrival(1200, 10);
    arrival(2300, 99);
    open(1130);
    auto& o = t.p.forms.OptionsForm;
    struct Case {
        Check& option;
        int timer, now;
        bool departing;
    };
    const Case cases[] = {{o.d1_CHECK, 1, 1143, true},  {o.d2_CHECK, 2, 1152, true},
                          {o.d3_CHECK, 3, 1158, true},  {o.a2_CHECK, 1, 1155, false},
                          {o.a1_CHECK, 3, 1148, false}, {o.a3_CHECK, 2, 1158, false}};
    for (const Case& c : cases) {
        if ((t.p.session.board.BoardMode == "departing") != c.departing) user::click(board.switchButton(1));
        for (Check* check : {&o.d1_CHECK, &o.d2_CHECK, &o.d3_CHECK, &o.a1_CHECK, &o.a2_CHECK, &o.a3_CHECK})
            user::check(*check, check == &c.option ? 0 : 1);
        setTime(c.now);
        t.p.session.hall.AnnouncedDepartures = {};
        t.p.session.hall.AnnouncedArrivals = {};
        EXPECT_EQ(play(c.timer), "") << c.option.name;
        user::check(c.option, 1);
        EXPECT_NE(play(c.timer), "") << c.option.name;
    }
}

TEST_F(Hall, WithoutItsOptionATimerOnlyDrawsItsNextInterval) {
    departure(1215, 10);
    departure(1216, 11);
    open(1200, "Dept1=0\r\n");
    user::check(t.p.forms.OptionsForm.d1_CHECK, 0);
    t.p.session.hall.AnnouncedDepartures[0] = {"a", "b"};
    sounds.lines.clear();
    t.machine.random.setDraws({0, 0, 0, 0, 0.5});
    tick(board.play1Timer);
    EXPECT_EQ(sounds.lines, kEngine);
    EXPECT_EQ(t.p.session.hall.AnnouncedDepartures[0], (AnnouncementRing{"a", "b"})) << "no scan, no shift";
    EXPECT_EQ(board.play1Timer.interval(), 30000);
    EXPECT_FALSE(board.waitPlayTimer.enabled);
}

TEST_F(Hall, DrawsAreEchoVoiceFrequencyStartAndInterval) {
    departure(1215, 10);
    departure(1216, 11);
    departure(1217, 12);
    open(1200);
    ASSERT_EQ(t.p.session.board.board.BoardRowCount, 2);
    // No echo, voice 11, the third frequency, row 1 of 3, the longest interval.
    t.machine.random.setDraws({0.49, 0.5, 0.99, 0.34, 0.99});
    tick(board.play1Timer);
    EXPECT_EQ(sounds.lines,
              (kEngine + Lines{"ClearBuffer 7", "LoadWavToChannel 7 \\Wavs\\Announcements.wav", "SetPan 7 0",
                               "SetVolume 7 0", "PlayDXSound 7 false", "ClearBuffer 1",
                               "LoadWavToChannel 1 \\Wavs\\tmp1.wav", "SetPan 1 0", "SetVolume 1 0",
                               "SetFrequency 1 8300", "PlayDXSound 1 false"}));
    EXPECT_EQ(t.p.session.hall.AnnouncedDepartures[0][0], "XX 0011");
    EXPECT_EQ(board.play1Timer.interval(), 45000);
    EXPECT_EQ(t.p.session.hall.PlayedFlags, (std::array<Flag, 6>{-1, 0, 0, 0, 0, 0}));
}

TEST_F(Hall, AnAnnouncementHoldsTheOthersBackForFiveSeconds) {
    departure(1215, 10);
    departure(1207, 11);
    open(1200);
    board.play1Timer.enable(false);
    board.play2Timer.enable(false);
    board.play3Timer.enable(false);
    plainDraws();
    tick(board.play1Timer);
    EXPECT_TRUE(board.waitPlayTimer.enabled);
    sounds.lines.clear();
    board.play2Timer.enable(true);
    tick(board.play2Timer);
    EXPECT_EQ(sounds.lines, Lines{});
    EXPECT_EQ(board.play2Timer.interval(), 5000);
    EXPECT_TRUE(board.play2Timer.enabled);
    EXPECT_EQ(t.p.session.hall.AnnouncedDepartures[1], AnnouncementRing{}) << "no scan while it is held back";
    t.machine.loop.advance(4999);
    EXPECT_TRUE(board.waitPlayTimer.enabled);
    plainDraws();
    t.machine.loop.advance(1); // its own five seconds end in the same moment, behind the older timer
    EXPECT_FALSE(board.waitPlayTimer.enabled && !heard("PlayDXSound 2 false"));
    EXPECT_TRUE(heard("PlayDXSound 2 false"));
    EXPECT_TRUE(board.waitPlayTimer.enabled) << "the second announcement holds back in its turn";
}

TEST_F(Hall, AFlightAnnouncedStaysInTheRingForTenScans) {
    for (int number = 10; number < 20; ++number) departure(1215, number);
    open(1200);
    // Row by row, each scan passing over what the ring holds; the tenth behind the first lets it go.
    for (int number = 10; number < 20; ++number) {
        EXPECT_EQ(play(1), "1 XX 00" + std::to_string(number));
        t.p.session.hall.PlayedFlags = {};
    }
    EXPECT_EQ(play(1), "1 XX 0010");
}

TEST_F(Hall, TheNewestOfTheRingStaysWhileNothingElseIsAnnounced) {
    departure(1215, 10);
    open(1200);
    EXPECT_EQ(play(1), "1 XX 0010");
    for (int scan = 1; scan <= 15; ++scan) {
        t.p.session.hall.PlayedFlags = {};
        EXPECT_EQ(play(1), "") << scan;
    }
}

TEST_F(Hall, ASecondFlightOfTheSameMinuteWaitsForTheMinuteTick) {
    departure(1215, 10);
    departure(1216, 11);
    open(1200);
    EXPECT_EQ(play(1), "1 XX 0010");
    EXPECT_EQ(play(1), "");
    EXPECT_EQ(t.p.session.hall.AnnouncedDepartures[0][1], "XX 0010") << "the ring moves all the same";
    tick(board.update_TIMER);
    EXPECT_EQ(t.p.session.hall.PlayedFlags, (std::array<Flag, 6>{}));
    EXPECT_EQ(play(1), "1 XX 0011");
}

TEST_F(Hall, FlagsOfTheOtherKindsAreNoObstacle) {
    departure(1215, 10);
    departure(1207, 11);
    departure(1202, 12);
    open(1200);
    EXPECT_EQ(play(1), "1 XX 0010");
    EXPECT_EQ(play(2), "2 XX 0011");
    EXPECT_EQ(play(3), "3 XX 0012");
    EXPECT_EQ(t.p.session.hall.PlayedFlags, (std::array<Flag, 6>{-1, -1, -1, 0, 0, 0}));
}

TEST_F(Hall, RowOnPageThreeWhilePageOneShowsIsPannedRightAndSofter) {
    for (int i = 0; i < 40; ++i) departure(1300 + i, i);
    departure(1219, 77); // sorts first by time; by flight number it is the last row
    open(1200);
    user::check(t.p.forms.OptionsForm.fltnumOption, 1);
    tick(board.update_TIMER);
    ASSERT_EQ(t.p.session.board.board.BoardRowCount, 40);
    ASSERT_EQ(trimmed(t.p.session.board.board.BoardRows[40].FlightText), "XX 0077");
    EXPECT_EQ(play(1), "1 XX 0077");
    for (const char* line : {"SetPan 7 9000", "SetVolume 7 -500", "SetPan 1 9000", "SetVolume 1 -500"})
        EXPECT_TRUE(heard(line)) << line;
}

TEST_F(Hall, RowOnAnEarlierPageIsPannedLeftAndSofter) {
    departure(1219, 0);
    for (int i = 1; i < 25; ++i) departure(1300 + i, i);
    open(1200);
    user::press(board.boardButton(1));
    user::release(board.boardButton(1));
    ASSERT_EQ(t.p.session.board.BoardPage, 1);
    EXPECT_EQ(play(1), "1 XX 0000");
    for (const char* line : {"SetPan 7 -9000", "SetVolume 7 -500", "SetPan 1 -9000", "SetVolume 1 -500"})
        EXPECT_TRUE(heard(line)) << line;
}

TEST_F(Hall, RowOnThePageInViewIsCentred) {
    for (int i = 1; i < 25; ++i) departure(1300 + i, i);
    departure(1219, 0);
    open(1200);
    EXPECT_EQ(play(1), "1 XX 0000");
    EXPECT_TRUE(heard("SetPan 1 0"));
    EXPECT_TRUE(heard("SetVolume 1 0"));
}

TEST_F(Hall, TimersFireInTheWaitsOfAnEchoButNeverInsideTheirOwnTick) {
    departure(1215, 10);
    open(1200);
    int fades = 0;
    int plays = 0;
    t.machine.loop.tick = [&](void* timer) {
        if (timer == &board.fade_timer) ++fades;
        if (timer == &board.play1Timer) ++plays;
        user::tick(*static_cast<Timer*>(timer));
    };
    board.fade_timer.setInterval(4); // due at 4, 8 and 12 of the 15 ms
    board.play1Timer.setInterval(6);
    const auto before = t.machine.clock.ticks();
    t.machine.random.setDraws({0.5, 0, 0, 0, 0});
    tick(board.play1Timer);
    EXPECT_EQ(t.machine.clock.ticks() - before, 15);
    EXPECT_EQ(fades, 3);
    EXPECT_GT(plays, 0) << "it falls due";
    EXPECT_EQ(std::ranges::count(sounds.lines, "PlayEcho 1 2 5"), 1) << "and does nothing";
    EXPECT_EQ(std::ranges::count(sounds.lines, "Initialize_Engine"), 1);
    EXPECT_EQ(t.p.session.hall.PlayedFlags[0], -1);
    EXPECT_EQ(board.play1Timer.interval(), 15000);
}

TEST_F(Hall, AnEchoThatThePilotLeavesInItsWaitsEndsInPeace) {
    departure(1215, 10);
    open(1200);
    t.machine.loop.tick = [&](void* timer) {
        if (timer == &board.FlashTimer) user::click(board.FlatButton(4)); // exit
    };
    board.FlashTimer.setInterval(3);
    t.machine.random.setDraws({0.5, 0, 0, 0, 0});
    tick(board.play1Timer);
    EXPECT_TRUE(t.p.ending);
    EXPECT_EQ(sounds.lines.back(), "Terminate_Engine");
    EXPECT_EQ(t.sound.buffers(), 0U);
}

TEST_F(Hall, CityOfADepartureComesFromTheDispatchListWhateverTheBoardShows) {
    departure(1215, 10);
    open(1200);
    t.p.session.schedule.DepartureFlights[0].DestinationIata =
        "CCC"; // has no recording: "0.wav" in both places
    EXPECT_EQ(play(1), "1 XX 0010");
    t.p.session.schedule.DepartureFlights.clear();
    t.p.session.hall.PlayedFlags = {};
    t.p.session.hall.AnnouncedDepartures = {};
    EXPECT_EQ(play(1), "1 XX 0010") << "without a flight there it still speaks";
}

TEST_F(Hall, MissingRecordingLeavesItsEmptyFileTheChimeAndNoFlag) {
    departure(1215, 7734);
    open(1200);
    std::filesystem::remove(folder.path("/Wavs/Female/77.wav"));
    plainDraws();
    tick(board.play1Timer);
    EXPECT_EQ(sounds.lines, (kEngine + Lines{"ClearBuffer 7", "LoadWavToChannel 7 \\Wavs\\Announcements.wav",
                                             "SetPan 7 0", "SetVolume 7 0", "PlayDXSound 7 false"}));
    EXPECT_EQ(std::filesystem::file_size(folder.path("/Wavs/Female/77.wav")), 0U);
    EXPECT_EQ(t.p.session.hall.PlayedFlags[0], 0);
    EXPECT_EQ(t.p.session.hall.AnnouncedDepartures[0][0], "XX 7734") << "it counts as announced all the same";
    EXPECT_TRUE(board.waitPlayTimer.enabled);
    EXPECT_EQ(board.play1Timer.interval(), 15000);
    EXPECT_TRUE(t.shown.empty()) << "the pilot hears of no sound problem";
}

} // namespace
} // namespace gatewise::test
