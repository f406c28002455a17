#include "dispatch/Terminal.h"
#include "pages/MainPass.h"

namespace gatewise::test {

namespace {

constexpr const char* kNoService =
    "Gatewise Terminal was unable to find any schedule airine service from this airport.";

class HostileFiles : public testing::Test {
protected:
    void begin() {
        schedule.write(folder, "/Data");
        writeSettings(folder);
        t.start();
    }
    void depart(const char* code) {
        user::type(main.departureText, code);
        t.answers = {[&] { user::click(t.p.forms.SelectForm.selectButton); }};
        user::enter(main.departureText);
    }

    TempFolder folder;
    Schedule schedule = smallSchedule();
    Terminal t{folder};
    forms::MainForm& main = t.p.forms.MainForm;
};

} // namespace

TEST_F(HostileFiles, AnAirportWithoutFlightsKeepsTheFlightsOfTheOther) {
    begin();
    EXPECT_EQ(t.shown.size(), 0U);
    depart("KCCC");
    EXPECT_EQ(t.lastMessage, kNoService);
    EXPECT_FALSE(t.p.forms.SelectForm.visible);
    EXPECT_EQ(t.p.session.schedule.DepartureFlights.size(), 2U);
    EXPECT_EQ(t.p.session.dispatch.DepartureIndex, 2);
    EXPECT_EQ(t.p.session.board.BoardAirportIndex, 0);
    EXPECT_EQ(main.dept_LABEL.text, "");
}

TEST_F(HostileFiles, FlightsBeyondTheEndOfTheFileAreNoService) {
    schedule.airports[2].DepartureCount = 2;
    schedule.airports[2].DepartureOffset = 33;
    begin();
    depart("KCCC");
    EXPECT_EQ(t.lastMessage, kNoService);
    for (const int offset : {0, -1, 65, 2147483647}) {
        t.lastMessage.clear();
        t.p.session.schedule.tables.airports[2].DepartureOffset = offset;
        depart("KCCC");
        EXPECT_EQ(t.lastMessage, kNoService) << offset;
    }
}

TEST_F(HostileFiles, AirportsOutsideTheTableLeaveTheirLabels) {
    auto& flight = schedule.flights.front();
    flight.OriginIndex = -7;
    flight.DestIndex = 32767;
    flight.DepartureTime = -1;
    flight.ArrivalTime = 9999;
    flight.FlightNumber = -32768;
    flight.PlanNumber = -5;
    begin();
    const std::string departure = main.dept_LABEL.text;
    EXPECT_NE(departure, "");
    ASSERT_EQ(SelectFlight(t.p, 0, FlightSource::DepartureFlights), Waited::Answered);
    EXPECT_EQ(main.dept_LABEL.text, departure);
    EXPECT_EQ(main.arr_LABEL.text, "");
    EXPECT_EQ(main.fltLABEL_1.text, "XX-32768");
    EXPECT_EQ(main.timeLABEL.text, "");
    user::click(main.statusboard_LABEL);
    user::click(main.switchButton(1));
    user::click(main.switchButton(1));
    user::click(main.main_LABEL);
    t.answers = {[&] { EXPECT_EQ(t.p.forms.SelectForm.List1.count(), 1); }};
    user::click(main.arrivalButton);
    t.answers = {[&] { EXPECT_EQ(t.p.forms.SelectForm.List1.count(), 4); }};
    user::click(main.alternateButton);
}

TEST_F(HostileFiles, WithoutAnyDataTheProgramStandsThere) {
    writeSettings(folder, "[FlightOptions]\r\nPreFlight=0\r\nFindAlternate=1\r\nSetDept=1\r\n");
    t.start();
    EXPECT_EQ(t.lastMessage, kNoService);
    EXPECT_TRUE(main.visible);
    EXPECT_EQ(main.arrivalButton.State, 0);
    for (SkinnedButton* button :
         {&main.enterButton, &main.arrivalButton, &main.FlatButton(1), &main.FlatButton(2)})
        user::click(*button);
    for (Label* tab : {&main.statusboard_LABEL, &main.log_LABEL, &main.main_LABEL}) user::click(*tab);
    user::enter(main.arrSearch);
    user::enter(main.altSearch);
    user::choose(main.dayCombo, 4);
    user::click(main.switchButton(0));
    user::click(main.switchButton(1));
    t.machine.loop.advance(70000);
    user::enter(t.p.forms.SettingsForm.airlineSearchTEXT);
    user::click(t.p.forms.SelectForm.selectButton);
    user::doubleClick(main.fltnum_LABEL(0));
    EXPECT_EQ(main.fltLABEL_1.text, "");
}

} // namespace gatewise::test
