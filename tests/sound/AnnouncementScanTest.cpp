#include "sound/AnnouncementScan.h"

#include "SoundFixture.h"

#include <deque>
#include <vector>

namespace gatewise::sound_test {
namespace {

class ScriptedRandom : public Random {
public:
    explicit ScriptedRandom(std::deque<double> draws) : draws_(std::move(draws)) {}
    double draw() override {
        const double next = draws_.front();
        draws_.pop_front();
        calls += 'd';
        return next;
    }
    void reseed() override { calls += 's'; }
    std::string calls;

private:
    std::deque<double> draws_;
};

class Scan : public testing::Test {
protected:
    void rowsAt(std::initializer_list<const char*> times) {
        rows.clear();
        names.clear();
        for (const char* time : times) {
            names.push_back(" DL " + std::to_string(1000 + names.size()));
            rows.push_back({names.back(), time});
        }
    }
    std::optional<DueAnnouncement> scan(std::int16_t timer = 1, bool departing = true, int start = 0,
                                        bool played = false) {
        const ScanBoard board{rows, page, hours, minutes, [](int row) { return "C" + std::to_string(row); }};
        return scanForAnnouncement(board, windowOf(timer, departing), start, played, ring);
    }
    int rowFound(std::int16_t timer = 1, bool departing = true, int start = 0) {
        const auto due = scan(timer, departing, start);
        return due ? due->row : -1;
    }

    std::deque<std::string> names;
    std::vector<ScanRow> rows;
    int page = 0;
    std::string hours = "08", minutes = "00";
    AnnouncementRing ring;
};

TEST(AnnouncementWindows, KindsStandInTheirCrossedOrder) {
    struct Case {
        std::int16_t timer;
        bool departing;
        std::int16_t kind;
    };
    const Case cases[] = {{1, true, 1},  {2, true, 2},  {3, true, 3},
                          {1, false, 4}, {3, false, 5}, {2, false, 6}};
    for (const Case& c : cases) {
        EXPECT_EQ(windowOf(c.timer, c.departing).kind, c.kind);
    }
}

TEST_F(Scan, WindowsHoldBothTheirEnds) {
    struct Case {
        std::int16_t timer;
        bool departing;
        int from, to;
    };
    const Case cases[] = {{1, true, 15, 19}, {2, true, 5, 10},   {3, true, 0, 3},
                          {1, false, 3, 8},  {3, false, 11, 15}, {2, false, 0, 2}};
    for (const Case& c : cases) {
        for (int minute = -5; minute <= 25; ++minute) {
            ring = {};
            minutes = "05";
            const std::string time =
                minute + 5 < 10 ? "080" + std::to_string(minute + 5) : "08" + std::to_string(minute + 5);
            rowsAt({time.c_str()});
            EXPECT_EQ(rowFound(c.timer, c.departing) == 0, minute >= c.from && minute <= c.to)
                << c.timer << c.departing << ' ' << minute;
        }
    }
}

TEST_F(Scan, DayDoesNotWrapAtMidnight) {
    hours = "23", minutes = "55";
    rowsAt({"0010"});
    EXPECT_FALSE(scan());
    hours = "00", minutes = "00";
    rowsAt({"0015"});
    EXPECT_EQ(rowFound(), 0);
}

TEST_F(Scan, TimeWithoutLeadingZerosIsReadAsFourDigits) {
    rowsAt({"815"});
    EXPECT_EQ(rowFound(), 0);
}

TEST_F(Scan, RowsAndClocksThatAreNoTimeOfDayAreNeverDue) {
    rowsAt({"", "ABCD", "2415", "0875", "12345", "-815", "0815"});
    EXPECT_EQ(rowFound(), 6);
    ring = {};
    hours = "";
    EXPECT_FALSE(scan());
    hours = "24";
    EXPECT_FALSE(scan());
}

TEST_F(Scan, GoesFromTheStartToTheEndAndThenFromTheTop) {
    rowsAt({"0815", "0816", "0900", "0817"});
    EXPECT_EQ(rowFound(1, true, 2), 3);
    EXPECT_EQ(rowFound(1, true, 2), 0);
    EXPECT_EQ(rowFound(1, true, 2), 1);
    EXPECT_EQ(rowFound(1, true, 2), -1);
}

TEST_F(Scan, SecondPassEndsAtTheStart) {
    rowsAt({"0900", "0815", "0816"});
    EXPECT_EQ(rowFound(1, true, 1), 1);
    EXPECT_EQ(rowFound(1, true, 2), 2);
}

TEST_F(Scan, StartBeyondTheRowsIsHarmless) {
    rowsAt({"0815"});
    EXPECT_EQ(rowFound(1, true, 50), 0);
    rows.clear();
    EXPECT_EQ(rowFound(1, true, 0), -1);
}

TEST_F(Scan, RowOnThePageInViewIsNearAndCentred) {
    rows.assign(60, {" DL 9", "0900"});
    page = 1;
    for (const int row : {20, 39}) {
        ring = {};
        rows.assign(60, {" DL 9", "0900"});
        rows[static_cast<std::size_t>(row)] = {" DL 0007", "0815"};
        const auto due = scan();
        ASSERT_TRUE(due);
        EXPECT_EQ(due->row, row);
        EXPECT_EQ(due->flightKey, "DL 0007");
        EXPECT_EQ(due->kind, 1);
        EXPECT_EQ(due->city, "C" + std::to_string(row));
        EXPECT_EQ(due->pan, 0);
        EXPECT_EQ(due->volume, 0);
    }
}

TEST_F(Scan, RowOnPageThreeWhilePageOneShowsIsRightAndSofter) {
    rows.assign(60, {" DL 9", "0900"});
    rows[40] = {" DL 0007", "0815"};
    const auto due = scan();
    ASSERT_TRUE(due);
    EXPECT_EQ(due->pan, 9000);
    EXPECT_EQ(due->volume, -500);
}

TEST_F(Scan, RowOnAnEarlierPageIsLeftAndSofter) {
    rows.assign(60, {" DL 9", "0900"});
    rows[19] = {" DL 0007", "0815"};
    page = 1;
    const auto due = scan();
    ASSERT_TRUE(due);
    EXPECT_EQ(due->pan, -9000);
    EXPECT_EQ(due->volume, -500);
    ring = {};
    rows[19].TimeText = "0900";
    rows[40] = {" DL 0007", "0815"};
    EXPECT_EQ(scan()->pan, 9000);
}

TEST_F(Scan, PlayedKindIsPassedOverButTheRingMovesOn) {
    rowsAt({"0815"});
    ring = {"a", "b", "c"};
    EXPECT_FALSE(scan(1, true, 0, true));
    EXPECT_EQ(ring, (AnnouncementRing{"a", "a", "b", "c"}));
}

TEST_F(Scan, NewEntryReplacesTheFirstAfterTheShift) {
    rowsAt({"0815"});
    ring = {"a", "b", "c", "d", "e", "f", "g", "h", "i", "j"};
    ASSERT_TRUE(scan());
    EXPECT_EQ(ring, (AnnouncementRing{"DL 1000", "a", "b", "c", "d", "e", "f", "g", "h", "i"}));
}

TEST_F(Scan, RingHoldsTheWholeTrimmedFlightText) {
    rowsAt({"0815", "0815"});
    rows[0].FlightText = " B6X1234";
    rows[1].FlightText = " B6X1235";
    EXPECT_EQ(scan()->flightKey, "B6X1234");
    EXPECT_EQ(scan()->flightKey, "B6X1235");
    EXPECT_EQ(ring[0], "B6X1235");
    EXPECT_EQ(ring[1], "B6X1234");
}

TEST_F(Scan, AnnouncedFlightIsKeptBackForTenScans) {
    rowsAt({"0815"});
    ASSERT_EQ(rowFound(), 0);
    // Others are announced behind it; the tenth of them puts it out of the ring.
    const std::deque<std::string> first = names;
    for (int i = 0; i < 9; ++i) {
        names.push_back(" XX " + std::to_string(i));
        rows = {{first[0], "0815"}, {names.back(), "0815"}};
        EXPECT_EQ(rowFound(), 1) << i;
    }
    EXPECT_EQ(rowFound(), 0);
}

TEST_F(Scan, OlderEntriesFallOutWhenNothingIsAnnounced) {
    rowsAt({"0815", "0815"});
    ASSERT_EQ(rowFound(), 0);
    ASSERT_EQ(rowFound(), 1);
    for (int i = 0; i < 8; ++i) EXPECT_EQ(rowFound(), -1) << i;
    EXPECT_EQ(rowFound(), 0);
}

TEST(AnnouncementDrawing, DrawsInOrderWithSeedsBeforeTheFirstAndTheThird) {
    ScriptedRandom random({0.5, 0.5, 0.34, 0.99});
    const auto draws = drawAnnouncement(random, 59);
    EXPECT_EQ(random.calls, "sddsdd");
    EXPECT_EQ(draws.echo, 1);
    EXPECT_EQ(draws.voice, 11);
    EXPECT_EQ(draws.frequency, 7500);
    EXPECT_EQ(draws.start, 59);
}

TEST(AnnouncementDrawing, StaysInItsRanges) {
    ScriptedRandom low({0, 0, 0, 0});
    const auto least = drawAnnouncement(low, 0);
    EXPECT_EQ(least.echo, 0);
    EXPECT_EQ(least.voice, 1);
    EXPECT_EQ(least.frequency, 8000);
    EXPECT_EQ(least.start, 0);
    ScriptedRandom high({0.999999, 0.999999, 0.999999, 0.999999});
    const auto most = drawAnnouncement(high, 0);
    EXPECT_EQ(most.echo, 1);
    EXPECT_EQ(most.voice, 20);
    EXPECT_EQ(most.frequency, 8300);
    EXPECT_EQ(most.start, 0);
}

TEST(AnnouncementDrawing, NextTickIsFifteenToFortyFiveSecondsAway) {
    ScriptedRandom random({0, 0.5, 0.999999});
    EXPECT_EQ(drawPlayInterval(random), 15000);
    EXPECT_EQ(drawPlayInterval(random), 30000);
    EXPECT_EQ(drawPlayInterval(random), 45000);
    EXPECT_EQ(random.calls, "sdsdsd");
}

TEST(Fade, InStopsAtTheTargetAndNamesTheWayBack) {
    const auto step = stepFade(-9000, -500, "in");
    EXPECT_EQ(step.level, -8820);
    EXPECT_EQ(step.direction, "in");
    EXPECT_FALSE(step.finished);
    const auto past = stepFade(-600, -500, "in");
    EXPECT_EQ(past.level, -500);
    EXPECT_EQ(past.direction, "out");
    EXPECT_TRUE(past.finished);
    EXPECT_FALSE(past.silence);
}

TEST(Fade, InThatReachesTheTargetExactlyStops) {
    const auto step = stepFade(-180, 0, "in");
    EXPECT_EQ(step.level, 0);
    EXPECT_TRUE(step.finished);
    EXPECT_EQ(step.direction, "out");
}

TEST(Fade, InReachesFullVolumeWithTickFifty) {
    std::int16_t level = -9000;
    int ticks = 0;
    for (bool finished = false; !finished && ticks < 100; ++ticks) {
        const auto step = stepFade(level, 0, "in");
        level = step.level;
        finished = step.finished;
    }
    EXPECT_EQ(level, 0);
    EXPECT_EQ(ticks, 50);
}

TEST(Fade, OutStopsTheChannelAtTheFloor) {
    const auto step = stepFade(-500, -500, "out");
    EXPECT_EQ(step.level, -680);
    EXPECT_EQ(step.direction, "out");
    EXPECT_FALSE(step.silence);
    for (const std::int16_t level : Shorts{-8820, -8821, -9000}) {
        const auto last = stepFade(level, -500, "out");
        EXPECT_EQ(last.level, -9000);
        EXPECT_EQ(last.direction, "in");
        EXPECT_TRUE(last.finished);
        EXPECT_TRUE(last.silence);
    }
    EXPECT_FALSE(stepFade(-8819, -500, "out").finished);
}

} // namespace
} // namespace gatewise::sound_test
