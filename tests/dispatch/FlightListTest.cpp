#include "dispatch/Terminal.h"
#include "pages/FlightForm.h"
#include "pages/MainDispatch.h"
#include "pages/MainPass.h"

#include <limits>

namespace gatewise::test {

namespace {

class FlightList : public testing::Test {
protected:
    void begin() {
        schedule.complete();
        schedule.write(folder, "/Data");
        writeSettings(folder);
        t.start();
        t.shown.clear();
    }
    /// Opens the picker for the destination, takes the first one and does `atList` while the list is up.
    void toList(std::function<void()> atList) {
        t.answers = {[&] { user::click(t.p.forms.SelectForm.selectButton); }, std::move(atList)};
        user::click(t.p.forms.MainForm.arrivalButton);
    }
    void pick(int row) {
        user::choose(t.p.forms.FlightForm.FlightList, row);
        user::doubleClick(t.p.forms.FlightForm.FlightList);
    }

    void select(int index) {
        EXPECT_EQ(SelectFlight(t.p, index, FlightSource::DepartureFlights), Waited::Answered);
    }

    TempFolder folder;
    Schedule schedule = smallSchedule();
    Terminal t{folder};
    forms::FlightForm& list = t.p.forms.FlightForm;
    forms::MainForm& pass = t.p.forms.MainForm;
    forms::FlightInfo& details = t.p.forms.InfoForm.FlightInfo1;
};

} // namespace

TEST_F(FlightList, AClickOnTheHeadEquipmentTakesADraggedColumnBack) {
    begin();
    toList([&] {
        auto& column = list.FlightList.columns[1];
        column.width = 12;
        user::column(list.FlightList, 1);
        EXPECT_DOUBLE_EQ(column.width, list.FlightList.width / 80 * 44);
        EXPECT_DOUBLE_EQ(list.FlightList.columns[0].width, list.FlightList.width / 80 * 12);
        EXPECT_EQ(list.FlightList.rows.front().key, "Flight0");
    });
    EXPECT_EQ(t.shown, (std::vector<std::string>{"SelectForm", "FlightForm"}));
}

TEST_F(FlightList, MoreThanAThousandFlightsEndInTheErrorMessage) {
    const FlightRecord one = schedule.flights.front();
    schedule.flights.assign(1000, one);
    begin();
    toList([] {});
    EXPECT_EQ(t.shown, (std::vector<std::string>{"SelectForm", "FlightForm"}));
    EXPECT_EQ(list.FlightList.rows.size(), 1000U);
    EXPECT_EQ(t.p.session.dispatch.FlightPickCount, 999);

    t.p.session.schedule.DepartureFlights.push_back(t.p.session.schedule.DepartureFlights.front());
    t.shown.clear();
    EXPECT_EQ(SetFlightList(t.p, "BBB"), Waited::Answered);
    EXPECT_EQ(t.shown, std::vector<std::string>{"MsgForm"});
    EXPECT_NE(t.lastMessage.find("Error Number 9\n"), std::string::npos) << t.lastMessage;
    EXPECT_NE(t.lastMessage.find("In Function SetFlightList "), std::string::npos) << t.lastMessage;
}

TEST_F(FlightList, AnEmptyOneOpensAndItsButtonsDoNothing) {
    schedule.flights.front().DaysMask = schedule.flights.back().DaysMask = 1;
    begin();
    user::choose(pass.dayCombo, 7);
    toList([&] {
        EXPECT_TRUE(list.FlightList.rows.empty());
        EXPECT_EQ(t.p.session.dispatch.FlightPickCount, -1);
        EXPECT_EQ(t.p.session.dispatch.FlightPicks.front(), 999999);
        user::click(list.flightButton);
        user::click(list.infoButton);
        user::doubleClick(list.FlightList);
        user::rightPress(list.FlightList);
        EXPECT_TRUE(list.visible);
    });
    EXPECT_EQ(t.shown, (std::vector<std::string>{"SelectForm", "FlightForm"}));
    EXPECT_EQ(pass.fltLABEL_1.text, "");
}

TEST_F(FlightList, AnUnknownClassKeepsTheClassThatStoodOnThePass) {
    schedule.flights.back().ClassCode = "Z";
    begin();
    toList([&] { pick(0); });
    EXPECT_EQ(pass.classLABEL.text, "ECONOMY");
    EXPECT_EQ(pass.fltLABEL_1.text, "XX10");
    select(1);
    EXPECT_EQ(pass.fltLABEL_1.text, "XX12");
    EXPECT_EQ(pass.classLABEL.text, "ECONOMY");
    EXPECT_EQ(pass.timeLABEL.text, "900A"); // exactly 1300 keeps the text as well
    EXPECT_EQ(pass.arrtimeLABEL.text, "200P");
}

TEST_F(FlightList, AFlightThatIsNotThereLeavesTheOneThatWas) {
    begin();
    select(0);
    const std::string flight = pass.fltLABEL_1.text;
    EXPECT_NE(flight, "");
    for (const int index : {2, -1, std::numeric_limits<int>::max()}) {
        ClearDispatch(t.p);
        select(index);
        EXPECT_EQ(pass.fltLABEL_1.text, flight) << index;
        EXPECT_EQ(pass.viewButton.State, 1) << index;
    }
    EXPECT_FALSE(t.p.forms.WaitForm.visible);
}

TEST_F(FlightList, DetailsOfAllDaysAndNoMeals) {
    schedule.flights.back().DaysMask = 1 + 8 + 64;
    schedule.flights.back().MealMask = 31;
    begin();
    toList([&] {
        user::choose(list.FlightList, 0);
        user::space(list.FlightList);
        for (const Label* day : {&details.monday_label, &details.tuesday_label, &details.wednesday_label,
                                 &details.thursday_label, &details.friday_label, &details.saturday_label,
                                 &details.sunday_label}) {
            EXPECT_EQ(day->text, "Y") << day->name;
        }
        EXPECT_EQ(details.meal.text, "None");
        user::choose(list.FlightList, 1);
        user::click(list.infoButton);
        EXPECT_EQ(details.monday_label.text, "Y");
        EXPECT_EQ(details.tuesday_label.text, " ");
        EXPECT_EQ(details.thursday_label.text, "Y");
        EXPECT_EQ(details.saturday_label.text, " ");
        EXPECT_EQ(details.sunday_label.text, "Y");
        EXPECT_EQ(details.meal.text, "B L D S Bev ");
        EXPECT_EQ(details.origin.text, " Ashby");
        // A padded code of two letters is looked up as it is written.
        EXPECT_EQ(details.flight_info.text, "Example Air 12, Boeing 737-800");
    });
    EXPECT_EQ(t.shown, (std::vector<std::string>{"SelectForm", "FlightForm", "InfoForm", "InfoForm"}));
}

TEST_F(FlightList, AnAlternateNeedsToLieBeyondTheMinimum) {
    begin();
    auto& settings = t.p.forms.SettingsForm;
    settings.altCHECK.set(1);
    // Every airport is nearer than the minimum but the blank one at 0, 0; that one is moved next to them.
    AirportRecord& blank = t.p.session.schedule.tables.airports.back();
    blank.Latitude = 41;
    blank.Longitude = -81;
    settings.altdistCOMBO.select(settings.altdistCOMBO.find("500"));
    select(0);
    EXPECT_EQ(t.p.session.dispatch.HaveAlternate, kFalse);
    EXPECT_EQ(t.p.session.dispatch.AlternateIndex, 0);
    EXPECT_EQ(pass.alt_LABEL.text, " Ashby - Alpha Field (AAA)");

    settings.altdistCOMBO.select(settings.altdistCOMBO.find("50"));
    select(0);
    EXPECT_EQ(t.p.session.dispatch.HaveAlternate, kTrue);
    EXPECT_EQ(t.p.session.dispatch.AlternateIndex, 0);

    settings.altCHECK.set(0);
    pass.alt_LABEL.text = " as it was";
    select(0);
    EXPECT_EQ(pass.alt_LABEL.text, " as it was");
}

TEST_F(FlightList, ATableOfFewerThanTwentyFiveAirportsIsListedWhole) {
    begin();
    t.answers = {[&] {
        const auto& lines = t.p.forms.SelectForm.List1;
        EXPECT_EQ(lines.items,
                  (std::vector<std::string>{" -  ()", "Ashby - Alpha Field (AAA)",
                                            "Birchwood - Bravo Intl (BBB)", "Cedar Point - Charlie (CCC)"}));
        EXPECT_EQ(lines.itemData, (std::vector<int>{3, 0, 1, 2}));
        EXPECT_EQ(lines.picked, -1);
    }};
    pass.alternateButton.State = 1;
    user::click(pass.alternateButton);
    EXPECT_EQ(t.shown, std::vector<std::string>{"SelectForm"});
}

} // namespace gatewise::test
