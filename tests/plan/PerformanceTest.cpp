#include "plan/Performance.h"

#include "PlanWorld.h"

#include <gtest/gtest.h>

namespace gatewise {
namespace {

Plan course(float directCourse, std::string_view rules = "IFR") {
    Plan plan;
    plan.directCourse = directCourse;
    plan.flightRules = rules;
    return plan;
}

TEST(TrueAirspeed, GrowsWithTheSquareOfTheAltitude) {
    EXPECT_DOUBLE_EQ(trueAirspeed(0, 250), 250);
    // 1 + 0.1072 + 0.0256 and 1 + 0.39664 + 0.350464
    EXPECT_NEAR(trueAirspeed(10000, 240), 271.872, 1e-9);
    EXPECT_NEAR(trueAirspeed(37000, 480), 838.60992, 1e-9);
}

TEST(EffectiveClimbRate, FourRowsOfARateOf2400) {
    const Plan plan;
    EXPECT_EQ(effectiveClimbRate(plan, 2400, 14999), 2000);
    EXPECT_EQ(effectiveClimbRate(plan, 2400, 15000), 1700);
    EXPECT_EQ(effectiveClimbRate(plan, 2400, 24999), 1700);
    EXPECT_EQ(effectiveClimbRate(plan, 2400, 25000), 1400);
    EXPECT_EQ(effectiveClimbRate(plan, 2400, 29999), 1400);
    EXPECT_EQ(effectiveClimbRate(plan, 2400, 30000), 1000);
}

TEST(EffectiveClimbRate, TheFactorOfABandIsThatOfItsRow) {
    EXPECT_EQ(effectiveClimbRate(Plan(), 3030, 24999), 2100); // 0.83: 2,095.75 and 99
    EXPECT_EQ(effectiveClimbRate(Plan(), 3030, 25000), 1700); // 0.67: 1,691.75 and 99
    EXPECT_EQ(effectiveClimbRate(Plan(), 3030, 30000), 1300); // 0.5: 1,262.5 and 99
}

TEST(EffectiveClimbRate, TheDivisorIsThe32BitFloatNearestTo1_2) {
    EXPECT_EQ(effectiveClimbRate(Plan(), 2301, 0), 1900); // 2,400 / 1.2000000477 stays below 2,000
    EXPECT_EQ(effectiveClimbRate(Plan(), 2302, 0), 2000);
}

TEST(EffectiveClimbRate, SmallRatesRoundToNothing) {
    EXPECT_EQ(effectiveClimbRate(Plan(), 21, 0), 0);
    EXPECT_EQ(effectiveClimbRate(Plan(), 22, 0), 100);
    EXPECT_LT(effectiveClimbRate(Plan(), -500, 0), 0);
}

TEST(LegalAltitude, OddThousandsEastEvenThousandsWest) {
    for (const std::int32_t odd : {5000, 7000, 9000, 25000, 27000}) {
        EXPECT_EQ(legalAltitude(course(90), odd), odd);
        EXPECT_EQ(legalAltitude(course(-90), odd + 1000), odd + 1000) << odd;
    }
    EXPECT_EQ(legalAltitude(course(90), 7345), 7000);
    EXPECT_EQ(legalAltitude(course(-90), 7345), 8000);
}

TEST(LegalAltitude, From29000UpLevelsLie4000Apart) {
    for (const std::int32_t level : {29000, 33000, 37000, 41000}) {
        EXPECT_EQ(legalAltitude(course(90), level), level);
        EXPECT_EQ(legalAltitude(course(-90), level + 2000), level + 2000);
    }
    EXPECT_EQ(legalAltitude(course(90), 35000), 37000);
}

TEST(LegalAltitude, ATieGoesUpward) {
    EXPECT_EQ(legalAltitude(course(-90), 33000), 35000);
    EXPECT_EQ(legalAltitude(course(90), 6000), 7000);
    EXPECT_EQ(legalAltitude(course(-90), 7000), 8000);
    EXPECT_EQ(legalAltitude(course(90), 31000), 33000);
}

TEST(LegalAltitude, ACourseOfExactlyZeroIsEastbound) {
    EXPECT_EQ(legalAltitude(course(0), 37000), 37000);
    EXPECT_EQ(legalAltitude(course(0), 20200), 21000);
    EXPECT_EQ(legalAltitude(course(-0.001F), 37000), 39000);
}

TEST(LegalAltitude, BelowOneFootTwoThousandAreAdded) {
    EXPECT_EQ(legalAltitude(course(90), 0), 1000);
    EXPECT_EQ(legalAltitude(course(-90), 0), 2000);    // 0 itself is a level, and below 1
    EXPECT_EQ(legalAltitude(course(90), -1266), 1000); // -1,000 + 2,000
}

TEST(LegalAltitude, VisualFlightsStandFiveHundredFeetOffAndStayBelow18000) {
    EXPECT_EQ(legalAltitude(course(90, "VFR"), 7400), 7500);
    EXPECT_EQ(legalAltitude(course(-90, "VFR"), 8400), 8500);
    // 19,500 is the level for 19,000 eastbound, and lies above 18,000
    EXPECT_EQ(legalAltitude(course(90, "VFR"), 19000), 17500);
}

TEST(LegalAltitude, TheEndsOf32BitsAreHeld) {
    EXPECT_LE(legalAltitude(course(90), 2147483647), 2147483647);
    EXPECT_LT(legalAltitude(course(-90), -2147483647 - 1), -2147400000);
}

TEST(AircraftPerformance, SpeedsByPhase) {
    test::FlightWorld world;
    world.type().CruiseSpeedTAS = 420;
    loadAircraftPerformance(world.plan, world.tables.aircraft, "733");
    const std::array<double, 7> expected = {240, 378, 399, 420, 399, 378, 240};
    for (std::size_t i = 0; i < 7; ++i) EXPECT_NEAR(world.plan.speedSchedule[i], expected[i], 1e-9) << i;
    EXPECT_EQ(world.plan.ceilingAltitude, 37000);
    EXPECT_EQ(world.plan.climbRate, 2400);
}

TEST(AircraftPerformance, LowSpeedIsEightTenthsAndAtMost240) {
    test::FlightWorld world;
    const auto low = [&](std::int16_t cruise) {
        world.type().CruiseSpeedTAS = cruise;
        loadAircraftPerformance(world.plan, world.tables.aircraft, "733");
        EXPECT_EQ(world.plan.speedSchedule[0], world.plan.speedSchedule[6]);
        return world.plan.speedSchedule[0];
    };
    EXPECT_DOUBLE_EQ(low(300), 240);
    EXPECT_DOUBLE_EQ(low(320), 240);
    EXPECT_DOUBLE_EQ(low(200), 160);
}

TEST(AircraftPerformance, TheDescentRateIsNeverPositive) {
    test::FlightWorld world;
    const auto rate = [&](std::int16_t stored) {
        world.type().DescentRate = stored;
        loadAircraftPerformance(world.plan, world.tables.aircraft, "733");
        return world.plan.descentRate;
    };
    EXPECT_EQ(rate(1800), -1800);
    EXPECT_EQ(rate(-1800), -1800);
    EXPECT_EQ(rate(0), 0);
    EXPECT_EQ(rate(-32768), -32768);
}

TEST(AircraftPerformance, TheFirstAircraftOfTheCodeCounts) {
    test::FlightWorld world;
    world.tables.aircraft.push_back(world.type());
    world.tables.aircraft[1].CruiseAltitude = 12000;
    loadAircraftPerformance(world.plan, world.tables.aircraft, "733");
    EXPECT_EQ(world.plan.ceilingAltitude, 37000);
}

TEST(AircraftPerformance, AnUnknownCodeLeavesThePlansNumbers) {
    test::FlightWorld world;
    world.plan.ceilingAltitude = 31000;
    world.plan.climbRate = 1500;
    loadAircraftPerformance(world.plan, world.tables.aircraft, "QQQ");
    EXPECT_EQ(world.plan.ceilingAltitude, 31000);
    EXPECT_EQ(world.plan.climbRate, 1500);
}

TEST(WholePart, DropsTheFractionInside32Bits) {
    EXPECT_EQ(wholePart(7345.99), 7345);
    EXPECT_EQ(wholePart(-0.9), 0);
    EXPECT_EQ(wholePart(-11.9), -11);
    EXPECT_EQ(wholePart(1e12), 2147483647);
    EXPECT_EQ(wholePart(-1e12), -2147483647 - 1);
    EXPECT_EQ(wholePart(std::numeric_limits<double>::quiet_NaN()), 0);
}

} // namespace
} // namespace gatewise
