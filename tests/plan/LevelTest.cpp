#include "plan/Level.h"

#include "HandMade.h"
#include "plan/Performance.h"

#include <gtest/gtest.h>

namespace gatewise {
namespace {

using test::equator;
using test::FlightWorld;
using test::handMade;

TEST(Level, EstimatesOfAHandFlownClimb) {
    // From 9,990 feet at 2,000 feet a minute, 33 and a third a second: one second ends C1 at 10,023.33. K is
    // 9 thousand for a ceiling of 9,000, so nothing is flown above it at all.
    Plan plan = handMade({0, 500});
    plan.ceilingAltitude = 9000;
    plan.departureAirport.Elevation = 8990;
    plan.destinationAirport.Elevation = 8990;
    LevelEstimate estimate;
    ASSERT_TRUE(chooseLevel(plan, estimate));
    EXPECT_EQ(plan.cruiseAltitude, 9000);
    const double low = 240;
    const double after = 8990 + 2000 / 60.0;
    EXPECT_DOUBLE_EQ(estimate.climb, (trueAirspeed(8990, low) + trueAirspeed(after, low)) / 7200);
    const double rate = 2000 / static_cast<double>(1.2F) / 60;
    EXPECT_NEAR(estimate.descent, 5 + (trueAirspeed(8990, low) + trueAirspeed(8990 + rate, low)) / 7200,
                1e-12);
}

TEST(Level, TheHighestLevelWithinEightyPerCentWins) {
    FlightWorld world = equator(100);
    world.type().CruiseAltitude = 41000;
    const Plan& plan = world.build();
    // 41, 37, 33, 29, 27, 25 ... until climb and descent fit into 80 miles.
    EXPECT_EQ(plan.cruiseAltitude % 2000, 1000);
    EXPECT_LT(plan.cruiseAltitude, 29000);

    Plan next = plan; // and the level above does not fit
    next.planLast = 1;
    next.at(1).pointTotalDistance = plan.totalDistance;
    for (std::int32_t level = plan.cruiseAltitude + 2000; level <= 29000; level += 2000) {
        next.ceilingAltitude = level;
        LevelEstimate estimate;
        ASSERT_TRUE(chooseLevel(next, estimate));
        EXPECT_EQ(next.cruiseAltitude, plan.cruiseAltitude) << level;
    }
}

TEST(Level, StepsOfFourAbove29AndOfTwoBelow) {
    // 41, 37, 33, 29, then 27: a route on which 29 is too high by a little takes 27.
    Plan plan = handMade({0, 900});
    plan.ceilingAltitude = 29000;
    LevelEstimate at29;
    ASSERT_TRUE(chooseLevel(plan, at29));
    ASSERT_EQ(plan.cruiseAltitude, 29000);
    plan.at(1).pointTotalDistance = static_cast<float>((at29.climb + at29.descent) / 0.8 - 0.5);
    for (const std::int32_t ceiling : {29000, 33000, 37000, 41000}) {
        plan.ceilingAltitude = ceiling;
        LevelEstimate estimate;
        ASSERT_TRUE(chooseLevel(plan, estimate));
        EXPECT_EQ(plan.cruiseAltitude, 27000) << ceiling;
    }
}

TEST(Level, ACourseOfExactlyZeroCountsAsEastbound) {
    Plan plan = handMade({0, 3000});
    plan.directCourse = 0;
    plan.ceilingAltitude = 35000;
    LevelEstimate estimate;
    ASSERT_TRUE(chooseLevel(plan, estimate));
    EXPECT_EQ(plan.cruiseAltitude, 37000); // the ceiling too is made a level
}

TEST(Level, AVeryShortRouteHasNone) {
    FlightWorld world = equator(6.2);
    const Plan& plan = world.build();
    EXPECT_EQ(plan.planLast, 1);
    EXPECT_EQ(plan.peakAltitude, 0 + world.departure().Elevation);
    EXPECT_EQ(plan.routeString, "KDEP..KDEP..KDST"); // the departure stands in for the last fix
    // Just long enough: nothing is climbed, and the approach alone fills 80 per cent.
    FlightWorld longer = equator(6.3);
    EXPECT_EQ(longer.build().planLast, 3);
}

TEST(Level, RatesThatNeverReachALevelEndTheStage) {
    const auto last = [](std::int16_t climb, std::int16_t descent) {
        FlightWorld world = equator(500);
        world.type().ClimbRate = climb;
        world.type().DescentRate = descent;
        return world.build().planLast;
    };
    EXPECT_EQ(last(0, 2000), 1);
    EXPECT_EQ(last(21, 2000), 1); // rounds to 0
    EXPECT_EQ(last(-500, 2000), 1);
    EXPECT_EQ(last(2400, 0), 1);
    EXPECT_GT(last(22, 2000), 1);
    EXPECT_GT(last(2400, 1), 1); // a foot a minute gets down in the end
}

TEST(Level, APositiveDescentRateLeftByAHandOffEndsTheStage) {
    FlightWorld world = equator(500);
    world.build();
    world.plan.descentRate = 2000;
    LevelEstimate estimate;
    EXPECT_FALSE(chooseLevel(world.plan, estimate));
}

TEST(Level, HostileNumbersComeToAnEnd) {
    FlightWorld world = equator(5000);
    for (const std::int32_t number : {2147483647, -2147483647 - 1}) {
        world.type().CruiseAltitude = number;
        world.departure().Elevation = number;
        world.build();
        world.destination().Elevation = -(number / 2);
        world.build();
    }
    world.type().CruiseSpeedTAS = 0;
    world.build();
    world.type().CruiseSpeedTAS = -32768;
    world.build();
    EXPECT_EQ(world.plan.at(world.plan.planLast).pointDescription.trimmed(), "Destination Field");
}

} // namespace
} // namespace gatewise
