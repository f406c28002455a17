#include "plan/FlightPlanUpdate.h"

#include "PlanWorld.h"
#include "plan/Build.h"
#include "plan/Geometry.h"
#include "plan/Level.h"
#include "plan/Performance.h"
#include "plan/TopPoints.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace gatewise {
namespace {

using test::FlightWorld;
using test::indexOf;
using test::namesOf;

/// A direct flight of about so many miles due east along the equator, where a degree is 60 miles.
FlightWorld equator(double miles) {
    FlightWorld world;
    world.departure().Latitude = world.destination().Latitude = 0;
    world.departure().Longitude = 0;
    world.destination().Longitude = static_cast<float>(miles / 60);
    return world;
}

/// A table whose legs are given by hand, so that the stages can be looked at one by one.
Plan handMade(const std::vector<float>& totals) {
    FlightWorld world;
    Plan plan;
    loadAircraftPerformance(plan, world.tables.aircraft, "733");
    plan.planLast = static_cast<std::int16_t>(totals.size() - 1);
    plan.cruiseAltitude = 17000;
    for (std::size_t i = 0; i < totals.size(); ++i) {
        PlanPoint& point = plan.points[i];
        point.pointName = std::string(1, static_cast<char>('A' + i));
        point.pointTotalDistance = totals[i];
        point.pointLegDistance = 1000.0F + static_cast<float>(i);
        point.pointHeading = 90;
        point.pointLongitude = totals[i] / 60;
    }
    return plan;
}

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

TEST(TopPoints, BothFallIntoTheirLegs) {
    Plan plan = handMade({0, 100, 200, 300});
    const auto last = insertTopPoints(plan, {60.4, 70.3}); // descent from 229.7
    ASSERT_EQ(last, 5);
    const std::array<const char*, 6> names = {"A", "*TOC*", "B", "C", "*TOD*", "D"};
    for (int i = 0; i <= 5; ++i)
        EXPECT_EQ(plan.at(i).pointName.trimmed(), names[static_cast<std::size_t>(i)]);
    EXPECT_EQ(plan.at(1).pointTotalDistance, 60);  // rounded
    EXPECT_EQ(plan.at(4).pointTotalDistance, 229); // truncated
    EXPECT_EQ(plan.at(1).pointType.view(), "TC");
    EXPECT_EQ(plan.at(1).pointId.view(), "*TOC*  ");
    EXPECT_EQ(plan.at(1).pointDescription.trimmed(), "Top of Climb");
    EXPECT_EQ(plan.at(1).pointFrequency.view(), "000.00");
    EXPECT_EQ(plan.at(1).pointAltitude, 17000);
    EXPECT_EQ(plan.at(1).pointHeading, 90);
    EXPECT_EQ(plan.at(4).pointType.view(), "TD");
    EXPECT_EQ(plan.at(4).pointDescription.trimmed(), "Top of Descent");
    EXPECT_EQ(plan.planLast, 3); // the walk raises it
}

TEST(TopPoints, TheMoveLeavesTheLegDistanceOfTheSlot) {
    Plan plan = handMade({0, 100, 200, 300});
    ASSERT_TRUE(insertTopPoints(plan, {60, 70}));
    EXPECT_EQ(plan.at(2).pointName.trimmed(), "B");
    EXPECT_EQ(plan.at(2).pointLegDistance, 1002);
    EXPECT_EQ(plan.at(2).pointTotalDistance, 100);
    EXPECT_EQ(plan.at(3).pointLegDistance, 1003);
}

TEST(TopPoints, RoundingTiesGoToEven) {
    Plan plan = handMade({0, 300});
    insertTopPoints(plan, {60.5, 70});
    EXPECT_EQ(plan.at(1).pointTotalDistance, 60);
    plan = handMade({0, 300});
    insertTopPoints(plan, {61.5, 70});
    EXPECT_EQ(plan.at(1).pointTotalDistance, 62);
}

TEST(TopPoints, PositionsLieAlongTheLegOfTheNextPoint) {
    Plan plan = handMade({0, 600});
    ASSERT_TRUE(insertTopPoints(plan, {120, 180}));
    EXPECT_NEAR(plan.at(1).pointLongitude, 2, 1e-3);
    EXPECT_NEAR(plan.at(1).pointLatitude, 0, 1e-6);
    EXPECT_NEAR(plan.at(2).pointLongitude, 7, 1e-3); // 600 - 180 miles
}

TEST(TopPoints, TopOfDescentIsPulledBackToFiveMilesBeforeTheNextFix) {
    Plan plan = handMade({0, 100, 200, 300});
    ASSERT_TRUE(insertTopPoints(plan, {60, 102})); // 198, two miles before C
    EXPECT_EQ(plan.at(3).pointName.trimmed(), "*TOD*");
    EXPECT_EQ(plan.at(3).pointTotalDistance, 195);
    plan = handMade({0, 100, 200, 300});
    ASSERT_TRUE(insertTopPoints(plan, {60, 105})); // exactly 5 miles stay
    EXPECT_EQ(plan.at(3).pointTotalDistance, 195);
    plan = handMade({0, 100, 200, 300});
    ASSERT_TRUE(insertTopPoints(plan, {60, 106}));
    EXPECT_EQ(plan.at(3).pointTotalDistance, 194);
}

TEST(TopPoints, TopOfClimbIsPushedToFiveMilesBehindTheFix) {
    Plan plan = handMade({0, 100, 200, 300});
    ASSERT_TRUE(insertTopPoints(plan, {102, 70}));
    EXPECT_EQ(plan.at(2).pointName.trimmed(), "*TOC*");
    EXPECT_EQ(plan.at(2).pointTotalDistance, 105);
}

TEST(TopPoints, BothInOneLeg) {
    Plan plan = handMade({0, 100, 400});
    ASSERT_TRUE(insertTopPoints(plan, {150, 100}));
    const std::array<const char*, 5> names = {"A", "B", "*TOC*", "*TOD*", "C"};
    for (int i = 0; i <= 4; ++i)
        EXPECT_EQ(plan.at(i).pointName.trimmed(), names[static_cast<std::size_t>(i)]);
}

TEST(TopPoints, AFixExactlyAtTheTopLiesBehindIt) {
    Plan plan = handMade({0, 100, 200, 300});
    ASSERT_TRUE(insertTopPoints(plan, {100, 100}));
    const std::array<const char*, 6> names = {"A", "*TOC*", "B", "*TOD*", "C", "D"};
    for (int i = 0; i <= 5; ++i)
        EXPECT_EQ(plan.at(i).pointName.trimmed(), names[static_cast<std::size_t>(i)]);
    EXPECT_EQ(plan.at(1).pointTotalDistance, 100); // more than 5 miles behind A, and not moved from B
    EXPECT_EQ(plan.at(3).pointTotalDistance, 195);
}

TEST(TopPoints, WithoutAClimbTheTopTakesTheDeparturesPlace) {
    Plan plan = handMade({0, 100, 200, 300});
    plan.departureAirport.Latitude = 10;
    plan.departureAirport.Longitude = 20;
    plan.at(1).pointHeading = 0;
    ASSERT_EQ(insertTopPoints(plan, {0, 70}), 4); // one more than there were
    const std::array<const char*, 6> names = {"*TOC*", "B", "B", "C", "*TOD*", "D"};
    for (int i = 0; i <= 5; ++i)
        EXPECT_EQ(plan.at(i).pointName.trimmed(), names[static_cast<std::size_t>(i)]);
    EXPECT_EQ(plan.at(0).pointType.view(), "TC");
    EXPECT_EQ(plan.at(0).pointTotalDistance, 0);
    EXPECT_NEAR(plan.at(0).pointLatitude, 10, 1e-6); // at the airport, but for the smallest offset
    EXPECT_NEAR(plan.at(0).pointLongitude, 20.03, 0.005);
}

TEST(TopPoints, InTheDeparturesPlaceTheDistanceIsLimitedFromAbove) {
    Plan plan = handMade({0, 3, 200, 300});
    ASSERT_TRUE(insertTopPoints(plan, {0, 70}));
    EXPECT_EQ(plan.at(0).pointTotalDistance, -2);
}

TEST(TopPoints, TheTableMustHaveRoomForTwo) {
    Plan plan = handMade({0, 100});
    plan.planLast = 198;
    for (int i = 0; i <= 198; ++i) plan.at(i).pointTotalDistance = static_cast<float>(10 * i);
    const Plan before = plan;
    EXPECT_FALSE(insertTopPoints(plan, {60, 70}));
    EXPECT_EQ(plan.at(199).pointName, before.at(199).pointName);
    plan.planLast = 197;
    EXPECT_TRUE(insertTopPoints(plan, {60, 70}));
}

TEST(TopPoints, APositionAtThePoleEndsTheStageWithThePointHalfFilled) {
    Plan plan = handMade({0, 100, 300});
    plan.at(1).pointLatitude = 90;
    EXPECT_FALSE(insertTopPoints(plan, {60, 70}));
    EXPECT_EQ(plan.at(3).pointName.trimmed(), "*TOD*");
    EXPECT_EQ(plan.at(4).pointName.trimmed(), "C");
    EXPECT_EQ(plan.planLast, 2);
}

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
