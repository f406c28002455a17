#include "dispatch/Terminal.h"
#include "pages/InfoForm.h"
#include "platform/Profile.h"

#include <algorithm>

namespace gatewise::test {

namespace {

class BoardScreen : public testing::Test {
protected:
    void begin(int home = 0) {
        schedule.complete();
        schedule.write(folder, "/Data");
        writeSettings(folder);
        (void)WriteValue("Main", "Index", std::to_string(home), folder.path("/GT.cfg"));
        t.start();
        t.shown.clear();
    }
    /// Another flight, behind those of its origin.
    void add(int from, int to, int number, int departure) {
        FlightRecord added = flight("XX", number, departure, departure + 100, from, to);
        added.AircraftCode = "738";
        added.ClassCode = "F";
        const auto behind = std::find_if(schedule.flights.begin(), schedule.flights.end(),
                                         [&](const FlightRecord& other) { return other.OriginIndex > from; });
        schedule.flights.insert(behind, added);
    }

    TempFolder folder;
    Schedule schedule = smallSchedule();
    Terminal t{folder};
    forms::MainForm& board = t.p.forms.MainForm;
    forms::FlightInfo& details = t.p.forms.InfoForm.FlightInfo1;
};

} // namespace

TEST_F(BoardScreen, APageTurnShowsAllTwentyStatusTextsAgain) {
    for (int i = 0; i < 30; ++i) add(0, 1, 100 + i, 1000 + i);
    begin();
    user::click(board.statusboard_LABEL);
    for (SkinnedButton* turn : {&board.boardButton(1), &board.boardButton(0)}) {
        for (int i = 0; i < 20; ++i)
            board.status_LABEL(i).visible = i % 2 == 0; // as the blinking leaves them
        user::click(*turn);
        EXPECT_EQ(t.p.session.board.BoardPage, turn == &board.boardButton(1) ? 1 : 0);
        for (int i = 0; i < 20; ++i) EXPECT_TRUE(board.status_LABEL(i).visible) << i;
    }
}

TEST_F(BoardScreen, AnAirportWithExactlyOneArrivalHasABoardOfArrivals) {
    add(0, 2, 77, 1100);
    add(2, 1, 78, 1200);
    begin(2);
    ASSERT_EQ(t.p.session.schedule.tables.airport(2).ArrivalCount, 1);
    ASSERT_EQ(t.p.session.board.BoardAirportIndex, 2);
    user::click(board.statusboard_LABEL);
    user::click(board.switchButton(1));
    EXPECT_EQ(t.p.session.board.BoardMode, "arriving");
    EXPECT_EQ(t.p.session.schedule.BoardFlightCount(), 0); // the one
    EXPECT_EQ(t.shown, std::vector<std::string>{}) << t.lastMessage;
}

TEST_F(BoardScreen, AHomeSearchSetsNoDots) {
    begin();
    auto& wait = t.p.forms.WaitForm;
    wait.Dots.picture = "\\Images\\Dot2.bmp";
    bool asked = false;
    t.answers = {[&] {
        asked = true;
        EXPECT_TRUE(wait.visible);
        EXPECT_EQ(wait.infoLABEL.text, "Finding Airport");
        EXPECT_EQ(wait.Dots.picture, "\\Images\\Dot2.bmp");
    }};
    user::type(t.p.forms.SettingsForm.searchText, "bbb");
    user::enter(t.p.forms.SettingsForm.searchText);
    EXPECT_TRUE(asked);
    EXPECT_FALSE(wait.visible);
    EXPECT_EQ(wait.Dots.picture, "\\Images\\Dot2.bmp");
}

TEST_F(BoardScreen, TheFlightInformationFollowsTheFontsOfTheDesktop) {
    const double width = t.p.forms.InfoForm.width;
    const double height = t.p.forms.InfoForm.height;
    t.machine.desktop.dotsPerInch = 120;
    begin();
    EXPECT_EQ(t.p.forms.InfoForm.width, static_cast<double>(static_cast<float>(width * 0.8F)));
    EXPECT_EQ(t.p.forms.InfoForm.height, static_cast<double>(static_cast<float>(height * 0.8F)));
}

TEST_F(BoardScreen, APointerBehindTheLastFlightKeepsTheFlightThatWasDrawn) {
    begin();
    const int count = t.p.session.schedule.DepartureFlightCount() + 1;
    ASSERT_GT(count, 1);
    ASSERT_EQ(showFlightInfo(t.p, FlightSource::DepartureFlights, count - 1), Waited::Answered);
    const std::string last = details.flight_info.text;
    EXPECT_NE(last, "");
    ASSERT_EQ(showFlightInfo(t.p, FlightSource::DepartureFlights, 0), Waited::Answered);
    const std::string first = details.flight_info.text;
    EXPECT_NE(first, last);
    for (const int pointer : {count, -1}) {
        ASSERT_EQ(showFlightInfo(t.p, FlightSource::DepartureFlights, pointer), Waited::Answered);
        EXPECT_EQ(details.pointer, std::to_string(pointer));
        EXPECT_EQ(details.flight_info.text, first) << pointer;
    }
}

} // namespace gatewise::test
