#include "dispatch/Terminal.h"

#include "input/UserEvents.h"
#include "pages/ViewPlan.h"
#include "plan/Editing.h"
#include "work/PlanWork.h"

#include <gtest/gtest.h>

namespace gatewise::test {
namespace {

/// The screen over a direct flight from the first airport to the second, 76 miles.
class PlanScreen : public testing::Test {
protected:
    void SetUp() override {
        schedule.aircraft[0].ClimbRate = 2400;
        schedule.aircraft[0].DescentRate = 2000;
        schedule.aircraft[0].CruiseAltitude = 37000;
        schedule.aircraft[0].CruiseSpeedTAS = 260;
        schedule.write(folder, "/Data");
        writeSettings(folder);
        t.start();
        t.p.session.dispatch.CurrentFlight = schedule.flights[0];
        Session& s = t.p.session;
        retrievePlan(s.plan.plan, planInput(s.AppDir, s.settings, s.schedule, s.dispatch));
        showPlan(t.p);
    }
    [[nodiscard]] std::vector<double> widths() const {
        std::vector<double> out;
        for (const auto& column : screen.PlanList.columns) out.push_back(column.width);
        return out;
    }
    void pick(int row) { user::choose(screen.PlanList, row); }

    TempFolder folder;
    Schedule schedule = smallSchedule();
    Terminal t{folder};
    forms::ViewPlan& screen = t.p.forms.ViewPlan;
};

TEST_F(PlanScreen, ColumnsShareTheWidthOfTheListInEightyEighths) {
    const double part = screen.PlanList.width / 88;
    const std::vector<double> table = {10 * part, 34 * part, 10 * part, 10 * part, 10 * part, 10 * part};
    ASSERT_EQ(widths().size(), table.size());
    for (std::size_t i = 0; i < table.size(); ++i) EXPECT_DOUBLE_EQ(widths()[i], table[i]) << i;
}

TEST_F(PlanScreen, AClickOnAHeadSetsThatColumnBackFromTheListsWidthOfTheMoment) {
    for (auto& column : screen.PlanList.columns) column.width = 5;
    screen.PlanList.width = 880;
    user::column(screen.PlanList, 1);
    EXPECT_EQ(widths(), (std::vector<double>{5, 340, 5, 5, 5, 5}));
    user::column(screen.PlanList, 5);
    EXPECT_EQ(widths(), (std::vector<double>{5, 340, 5, 5, 5, 100}));
    user::column(screen.PlanList, 6);
    EXPECT_EQ(widths(), (std::vector<double>{5, 340, 5, 5, 5, 100}));
}

TEST_F(PlanScreen, TheArrowsStartAtTheHighestAltitudeAndKeepTheirRange) {
    EXPECT_EQ(screen.AltUpDown.value, t.p.session.plan.plan.peakAltitude);
    EXPECT_EQ(screen.AltUpDown.min, 500);
    EXPECT_EQ(screen.AltUpDown.max, 70000);
    EXPECT_EQ(screen.AltUpDown.step, 1000);
    EXPECT_TRUE(screen.AltUpDown.toolTip.starts_with(
        "Use the Up/Dn arrows to set a new cruise altitude for the flight and press the RECALC button to "
        "recalculate the flight plan."));
    user::type(screen.altNew, "12000");
    EXPECT_EQ(screen.altNew.text, std::to_string(t.p.session.plan.plan.peakAltitude));
}

TEST_F(PlanScreen, ARefusalIsAMessageAndLeavesTheList) {
    const auto rows = screen.PlanList.rows.size();
    const Plan before = t.p.session.plan.plan;
    std::vector<std::string> texts;
    for (const int row : {0, 1, 2, 3}) {
        t.answers.emplace_back([&] { texts.push_back(t.p.forms.MsgBox.text.text); });
        pick(row);
        EXPECT_EQ(removeShownPoint(t.p), Waited::Answered);
    }
    EXPECT_EQ(t.shown, (std::vector<std::string>(4, "MsgBox")));
    EXPECT_EQ(texts, (std::vector<std::string>{std::string(kAirportRefusal), std::string(kComputedRefusal),
                                               std::string(kComputedRefusal), std::string(kAirportRefusal)}));
    EXPECT_EQ(screen.PlanList.rows.size(), rows);
    EXPECT_EQ(t.p.session.plan.plan.planLast, before.planLast);
    EXPECT_EQ(t.p.session.plan.plan.routeString, before.routeString);
}

TEST_F(PlanScreen, WithoutAPointThereIsNothingToRefuse) {
    screen.PlanList.picked = -1;
    EXPECT_EQ(removeShownPoint(t.p), Waited::Answered);
    pick(5);
    EXPECT_EQ(removeShownPoint(t.p), Waited::Answered);
    EXPECT_TRUE(t.shown.empty());
}

} // namespace
} // namespace gatewise::test
