#include "plan/FlightPlanUpdate.h"

#include "HandMade.h"
#include "plan/Build.h"
#include "plan/Performance.h"

#include <cmath>
#include <cstdio>
#include <gtest/gtest.h>
#include <limits>

namespace gatewise {
namespace {

using test::equator;
using test::FlightWorld;
using test::handMade;
using test::indexOf;
using test::namesOf;

TEST(Walk, DepartureAboveTheLevelFallsBackAndStillRaisesPlanLastByTwo) {
    FlightWorld world = equator(120);
    world.departure().Elevation = 13300;
    world.type().CruiseAltitude = 9000;
    world.add("FIX", 0, 1);
    const Plan& plan = world.build();
    ASSERT_EQ(plan.planLast, 4);
    EXPECT_EQ(namesOf(plan), (std::vector<std::string>{"*TOC*", "FIX", "FIX", "*TOD*", "KDST"}));
    EXPECT_EQ(plan.cruiseAltitude, 9000);
}

TEST(Walk, AltitudesAreLevelsForTheDirection) {
    FlightWorld world = equator(600);
    for (int i = 1; i <= 8; ++i)
        world.add("P" + std::to_string(i), 0, static_cast<float>(i) * 0.15F); // every 9 miles
    const Plan& plan = world.build();
    const int top = indexOf(plan, "*TOC*");
    ASSERT_GT(top, 5);
    for (int i = 1; i < top; ++i) {
        const std::int32_t a = plan.at(i).pointAltitude;
        if (plan.at(i).pointType.view() == "SU") continue;
        EXPECT_EQ(a, legalAltitude(plan, a)) << i;
        EXPECT_GE(a, plan.at(i - 1).pointAltitude) << i;
    }
    EXPECT_EQ(plan.at(top).pointAltitude, plan.cruiseAltitude);
}

TEST(Walk, OneSecondOfClimbByHand) {
    // The first fix lies so near that one second passes it: 33 feet, shown as the level 1,000.
    FlightWorld world = equator(500);
    world.type().CruiseAltitude = 9000;
    world.add("NEAR", 0, 0.0009F); // 0.054 miles; a second at 240 knots makes 0.067
    const Plan& plan = world.build();
    EXPECT_EQ(plan.at(1).pointName.trimmed(), "NEAR");
    EXPECT_EQ(plan.at(1).pointAltitude, 1000);
    EXPECT_EQ(plan.at(1).pointMinutes, 0);
}

TEST(Walk, CruiseMinutesAreTheMeanOfTwoSpeeds) {
    FlightWorld world = equator(900);
    world.type().CruiseAltitude = 19000;
    world.add("MID", 0, 5);
    world.add("FAR", 0, 10);
    const Plan& plan = world.build();
    const int top = indexOf(plan, "*TOC*");
    const int mid = indexOf(plan, "MID");
    ASSERT_EQ(mid, top + 1);
    const double speed = trueAirspeed(19000, 420);
    const double leg = 300 - static_cast<double>(plan.at(top).pointTotalDistance);
    EXPECT_NEAR(plan.at(mid).pointMinutes - plan.at(top).pointMinutes, leg * 60 / speed, 1.01);
    EXPECT_NEAR(plan.at(mid + 1).pointMinutes - plan.at(mid).pointMinutes, 300 * 60 / speed, 1.01);
}

TEST(Walk, TheClimbedPartOfTheLegToTheTopCountsTwice) {
    FlightWorld world = equator(900);
    world.type().CruiseAltitude = 19000;
    const Plan& plan = world.build();
    const double leg = plan.at(1).pointTotalDistance;
    // Climb: 10,000 feet at 2,000, 5,000 at 2,000 and 4,000 at 1,700 feet a minute; then the whole leg again,
    // at the mean of the level's speed and that of the departure's level of 1,000 feet.
    const double climb = 7.5 + 4.0 / 1.7;
    const double again = leg * 60 / ((trueAirspeed(19000, 420) + trueAirspeed(1000, 420)) / 2);
    EXPECT_EQ(plan.at(1).pointName.trimmed(), "*TOC*");
    EXPECT_NEAR(plan.at(1).pointMinutes, climb + again, 1.1);
}

TEST(Walk, ATopOfDescentAt10000OrBelowBeginsWithTheLastBlock) {
    FlightWorld world = equator(300);
    world.type().CruiseAltitude = 9000;
    world.add("DOWN", 0, 4.9F); // behind the top of descent
    Plan& plan = world.build();
    const int top = indexOf(plan, "*TOD*");
    ASSERT_EQ(indexOf(plan, "DOWN"), top + 1);
    // The last block flies at the speed of index 4, though the estimate took that of index 6.
    const double leg = static_cast<double>(plan.at(top + 1).pointTotalDistance) -
                       static_cast<double>(plan.at(top).pointTotalDistance);
    const double minutes = leg / trueAirspeed(8000, 399) * 60;
    EXPECT_NEAR(plan.at(top + 1).pointMinutes - plan.at(top).pointMinutes, minutes, 1.1);
    EXPECT_LT(plan.at(top + 1).pointAltitude, 9000);
}

TEST(Walk, TheDestinationStandsNearItsElevation) {
    FlightWorld world = equator(900);
    world.destination().Elevation = 5431;
    const Plan& plan = world.build();
    // The last 10,000 feet are flown faster than they were estimated, so that some height is left.
    EXPECT_EQ(plan.at(plan.planLast).pointAltitude, 7000);
}

TEST(Walk, ASpeedOfNothingEndsTheWalk) {
    Plan plan = handMade({0, 900});
    plan.speedSchedule = {};
    EXPECT_FALSE(computeProfile(plan)); // E and F are 0 and 5, but no leg is ever flown
    EXPECT_EQ(plan.planLast, 1);
}

TEST(Times, StepPointsDoNotChangeTheFlight) {
    FlightWorld world = equator(2000);
    world.add("MID", 0, 10);
    Plan& plan = world.build();
    ASSERT_LE(indexOf(plan, "STEPC"), plan.planLast);
    const std::int32_t mid = plan.at(indexOf(plan, "MID")).pointMinutes;
    const std::int32_t end = plan.at(plan.planLast).pointMinutes;
    for (int i = 1; i <= plan.planLast; ++i) EXPECT_GE(plan.at(i).pointMinutes, plan.at(i - 1).pointMinutes);
    EXPECT_GT(end, mid);
    // Altitudes in the table count only for the point before a cruise leg.
    Plan other = plan;
    for (int i = indexOf(plan, "*TOD*") + 1; i <= plan.planLast; ++i) other.at(i).pointAltitude = 12345;
    ASSERT_TRUE(recomputeTimes(other));
    for (int i = 0; i <= plan.planLast; ++i)
        EXPECT_EQ(other.at(i).pointMinutes, plan.at(i).pointMinutes) << i;
}

TEST(Times, TheTopOfDescentIsKnownByItsName) {
    FlightWorld world = equator(900);
    Plan plan = world.build();
    const std::int32_t end = plan.at(plan.planLast).pointMinutes;
    const int top = indexOf(plan, "*TOD*");
    plan.at(top).pointType = std::string_view("XX");
    ASSERT_TRUE(recomputeTimes(plan));
    EXPECT_EQ(plan.at(plan.planLast).pointMinutes, end);
    plan.at(top).pointName = std::string_view("OTHER"); // never descends: the last leg is cruised
    ASSERT_TRUE(recomputeTimes(plan));
    EXPECT_NE(plan.at(plan.planLast).pointMinutes, end);
}

TEST(ClockText, HoursAndMinutesOfTwoDigits) {
    EXPECT_EQ(clockText(0), "00:00");
    EXPECT_EQ(clockText(59), "00:59");
    EXPECT_EQ(clockText(60), "01:00");
    EXPECT_EQ(clockText(119), "01:59");
    EXPECT_EQ(clockText(6005), "100:05");
    for (std::int32_t m = 0; m < 6000; ++m) {
        char text[16];
        std::snprintf(text, sizeof text, "%02d:%02d", m / 60, m % 60);
        ASSERT_EQ(clockText(m), text);
    }
}

TEST(Legs, PositionsThatAreNoNumbersKeepWhatTheLegHad) {
    Plan plan = handMade({0, 60, 120});
    plan.at(0).pointLegDistance = 0;
    plan.at(1).pointLatitude = std::numeric_limits<float>::quiet_NaN();
    measureLegs(plan);
    EXPECT_EQ(plan.at(1).pointLegDistance, 1001);
    EXPECT_TRUE(std::isfinite(plan.totalDistance));
}

TEST(Legs, WestboundCoursesAreTurnedPositive) {
    Plan plan = handMade({0, 0, 0});
    plan.at(1).pointLongitude = -1;
    plan.at(2).pointLongitude = 1;
    plan.at(0).pointLegDistance = 0;
    measureLegs(plan);
    EXPECT_NEAR(plan.at(1).pointHeading, 270, 0.1);
    EXPECT_NEAR(plan.at(2).pointHeading, 90, 0.1);
    EXPECT_NEAR(plan.at(1).pointTotalDistance, 60, 0.01);
    EXPECT_NEAR(plan.totalDistance, 180, 0.01);
    EXPECT_EQ(plan.at(2).pointTotalDistance, plan.totalDistance);
    EXPECT_EQ(plan.at(0).pointTotalDistance, 0);
}

} // namespace
} // namespace gatewise
