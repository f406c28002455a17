#include "plan/PlanList.h"

#include "PlanWorld.h"

#include <gtest/gtest.h>

namespace gatewise {
namespace {

using test::FlightWorld;
using Cells = std::array<std::string, 6>;

const NumberLocale kPoint;
const NumberLocale kComma{",", ","};

FlightWorld twoFixes() {
    FlightWorld world;
    world.departure().Elevation = 433;
    world.destination().Elevation = -11;
    world.tables.airports[2].Elevation = 1228;
    world.plan.departureAirport.Icao = std::string_view("KDEP");
    world.add("AAA", 40.5F, -95, "J1");
    world.add("BB", 40.5F, -85);
    world.plan.at(1).pointDescription = std::string_view("First Vor");
    world.type().ClimbRate = 0; // the table as filed
    world.build();
    return world;
}

std::string padded(std::string text, std::size_t width) {
    text.resize(width, ' ');
    return text;
}

TEST(PlanList, RowsInTheirOrder) {
    FlightWorld world = twoFixes();
    Plan& plan = world.plan;
    plan.at(1).pointAltitude = 9000;
    plan.at(1).pointHeading = 83.5F;
    plan.at(1).pointLegDistance = 230.25F;
    plan.at(3).pointHeading = 7;
    plan.at(3).pointLegDistance = 99.95F;
    plan.totalDistance = 12345.64F;
    const auto rows = planListRows(plan, world.tables, 2, MagneticTable(), kPoint);
    ASSERT_EQ(rows.size(), 8U);
    EXPECT_EQ(rows[0].cells, (Cells{" KDEP", padded("Departure Field", 36), "", "", "", "00433"}));
    EXPECT_EQ(rows[1].cells, (Cells{" AAA", padded("First Vor", 36), "J1   ", "084", "230.3", "09000"}));
    EXPECT_EQ(rows[2].cells[0], " BB");
    EXPECT_EQ(rows[3].cells,
              (Cells{" KDST", padded("Destination Field", 36), "     ", "007", "100.0", "-00011"}));
    EXPECT_EQ(rows[4].cells, (Cells{" ", "Total Distance", "", "", "12345.6", ""}));
    EXPECT_EQ(rows[5].cells, (Cells{" ", "", "", "", "", ""}));
    EXPECT_EQ(rows[6].cells, (Cells{" ", "Alternate Airport", "", "", "", ""}));
    EXPECT_EQ(rows[7].cells[0], " KALT");
    EXPECT_EQ(rows[7].cells[5], "01228");
}

TEST(PlanList, OnlyTheTotalAndTheTitleAreBold) {
    FlightWorld world = twoFixes();
    const auto rows = planListRows(world.plan, world.tables, 2, MagneticTable(), kPoint);
    for (std::size_t i = 0; i < rows.size(); ++i) {
        std::array<bool, 6> expected{};
        if (i == 4) expected[1] = expected[4] = true;
        if (i == 6) expected[1] = true;
        EXPECT_EQ(rows[i].bold, expected) << i;
    }
}

TEST(PlanList, TheAlternateIsMeasuredFromTheDestination) {
    FlightWorld world = twoFixes();
    const auto rows = planListRows(world.plan, world.tables, 2, MagneticTable(), kPoint);
    // From 40 N 80 W to 41 N 81 W: 60 miles north and some 45.6 west.
    EXPECT_NEAR(std::stod(rows[7].cells[4]), 75.4, 0.2);
}

TEST(PlanList, WithoutAnAlternateTheAirportAtPositionZeroShows) {
    FlightWorld world = twoFixes();
    const auto rows = planListRows(world.plan, world.tables, 0, MagneticTable(), kPoint);
    EXPECT_EQ(rows[7].cells[0], " KDEP");
    EXPECT_EQ(rows[7].cells[5], "00433");
}

TEST(PlanList, NumbersCarryTheLocalesSign) {
    FlightWorld world = twoFixes();
    world.plan.totalDistance = 918.5F;
    const auto rows = planListRows(world.plan, world.tables, 2, MagneticTable(), kComma);
    EXPECT_EQ(rows[4].cells[4], "918,5");
}

TEST(PlanList, HeadingsAreMagneticAtTheirPoint) {
    FlightWorld world = twoFixes();
    const test::TempFolder simulator;
    Bytes table(136 + 2 * 360 * 181, 0);
    detail::storeField(std::int16_t{1000}, table.data() + 136 + 2 * ((360 - 95) * 181 + 40 + 90)); // 5.5 east
    simulator.write("/SCENERY/MAGDEC.BGL", table);
    world.plan.at(1).pointHeading = 90;
    world.plan.at(2).pointHeading = 90;
    const auto rows = planListRows(world.plan, world.tables, 2, MagneticTable(simulator.path()), kPoint);
    EXPECT_EQ(rows[1].cells[3], "085"); // 84.5, half upward
    EXPECT_EQ(rows[2].cells[3], "090");
    const auto without = planListRows(world.plan, world.tables, 2, MagneticTable(), kPoint);
    EXPECT_EQ(without[1].cells[3], "090");
}

} // namespace
} // namespace gatewise
