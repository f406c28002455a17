#include "announce/Hall.h"

#include <algorithm>

// Rows that flash, the sound of the hall that comes and goes, and the silence of a board that is left.

namespace gatewise::test {
namespace {

using Lines = std::vector<std::string>;

TEST_F(Hall, RowFlashingHiddenIsShownByTheMinuteTick) {
    departure(1215, 10);
    departure(1300, 11);
    open(1200);
    ASSERT_EQ(board.status_LABEL(0).text, "BOARDING");
    tick(board.FlashTimer);
    EXPECT_FALSE(board.status_LABEL(0).visible);
    EXPECT_TRUE(board.status_LABEL(1).visible);
    tick(board.update_TIMER);
    EXPECT_TRUE(board.status_LABEL(0).visible);
    tick(board.FlashTimer);
    tick(board.FlashTimer);
    EXPECT_TRUE(board.status_LABEL(0).visible) << "on and off at one hertz";
}

TEST_F(Hall, ArrivingRowsFlashOnTheOtherBoardAndBoardingOnesDoNot) {
    departure(1800, 1);
    arrival(1205, 10);
    arrival(1300, 11);
    arrival(1301, 12);
    open(1200);
    turnToArrivals();
    tick(board.update_TIMER);
    ASSERT_EQ(board.status_LABEL(0).text, "ARRIVING");
    board.status_LABEL(1).text = "BOARDING";
    tick(board.FlashTimer);
    EXPECT_FALSE(board.status_LABEL(0).visible);
    EXPECT_TRUE(board.status_LABEL(1).visible);
}

TEST_F(Hall, FlashingARowLeftHiddenByAnotherStatusShowsItAgain) {
    departure(1215, 10);
    open(1200);
    tick(board.FlashTimer);
    ASSERT_FALSE(board.status_LABEL(0).visible);
    board.status_LABEL(0).text = "DEPARTED";
    tick(board.FlashTimer);
    EXPECT_TRUE(board.status_LABEL(0).visible);
}

TEST_F(Hall, FadeStepsInAndOutWithTheDirectionOfTheNextOne) {
    departure(1215, 10);
    open(1200);
    const auto& hall = t.p.session.hall;
    ASSERT_EQ(t.p.session.settings.AmbienceVolume, -1800);
    for (int step = 1; step <= 39; ++step) {
        sounds.lines.clear();
        tick(board.fade_timer);
        EXPECT_EQ(hall.AmbienceLevel, -9000 + 180 * step);
        EXPECT_EQ(sounds.lines, Lines{"ChangeVolume 8 " + std::to_string(hall.AmbienceLevel)});
        EXPECT_EQ(hall.FadeDirection, "in");
        EXPECT_TRUE(board.fade_timer.enabled);
    }
    tick(board.fade_timer); // reaches the target
    EXPECT_EQ(hall.AmbienceLevel, -1800);
    EXPECT_EQ(hall.FadeDirection, "out");
    EXPECT_FALSE(board.fade_timer.enabled);

    user::click(board.main_LABEL);
    EXPECT_EQ(hall.FadeDirection, "out");
    EXPECT_TRUE(board.fade_timer.enabled);
    for (int step = 1; step <= 39; ++step) {
        tick(board.fade_timer);
        EXPECT_EQ(hall.AmbienceLevel, -1800 - 180 * step);
        EXPECT_EQ(hall.FadeDirection, "out");
    }
    sounds.lines.clear();
    tick(board.fade_timer);
    EXPECT_EQ(hall.AmbienceLevel, -9000);
    EXPECT_EQ(sounds.lines, (Lines{"StopDXSound 8", "ChangeVolume 8 -9000"}));
    EXPECT_EQ(hall.FadeDirection, "in");
    EXPECT_FALSE(board.fade_timer.enabled);
}

TEST_F(Hall, FadeTurnsWhereItStands) {
    departure(1215, 10);
    open(1200);
    t.machine.loop.advance(1000);
    EXPECT_EQ(t.p.session.hall.AmbienceLevel, -7200);
    user::click(board.log_LABEL);
    t.machine.loop.advance(500);
    EXPECT_EQ(t.p.session.hall.AmbienceLevel, -8100);
    sounds.lines.clear();
    user::click(board.statusboard_LABEL);
    EXPECT_TRUE(heard("SetVolume 8 -8100"));
    EXPECT_EQ(t.p.session.hall.FadeDirection, "in");
}

TEST_F(Hall, FadeToTheLowestVolumeStopsWithItsFirstStep) {
    departure(1215, 10);
    open(1200);
    t.p.session.settings.AmbienceVolume = -9000;
    tick(board.fade_timer);
    EXPECT_EQ(t.p.session.hall.AmbienceLevel, -9000);
    EXPECT_EQ(t.p.session.hall.FadeDirection, "out");
    EXPECT_FALSE(board.fade_timer.enabled);
}

TEST_F(Hall, LeavingTheBoardSilencesItsTimersOnEveryWay) {
    departure(1215, 10);
    open(1200);
    for (Label* way : {&board.main_LABEL, &board.log_LABEL}) {
        user::click(*way);
        for (Timer* timer : {&board.update_TIMER, &board.FlashTimer, &board.play1Timer, &board.play2Timer,
                             &board.play3Timer})
            EXPECT_FALSE(timer->enabled) << timer->name;
        sounds.lines.clear();
        t.machine.loop.advance(120000);
        EXPECT_TRUE(std::ranges::none_of(sounds.lines, [](const auto& line) {
            return line.starts_with("PlayDXSound") || line.starts_with("PlayEcho");
        }));
        user::click(board.statusboard_LABEL);
        EXPECT_EQ(board.play1Timer.interval(), 10000);
        EXPECT_EQ(board.play2Timer.interval(), 25000);
        EXPECT_EQ(board.play3Timer.interval(), 40000);
    }
}

} // namespace
} // namespace gatewise::test
