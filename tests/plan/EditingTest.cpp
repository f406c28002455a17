#include "plan/Editing.h"

#include "PlanWorld.h"
#include "plan/Build.h"

#include <gtest/gtest.h>

namespace gatewise {
namespace {

using test::FlightWorld;
using test::indexOf;
using test::namesOf;
using Names = std::vector<std::string>;

FlightWorld threeFixes() {
    FlightWorld world;
    world.type().CruiseAltitude = 19000; // no steps
    world.add("AAA", 40.5F, -95, "J1");
    world.add("BBB", 41, -90, "J1");
    world.add("CCC", 40.5F, -85);
    world.build();
    return world;
}

int rowOf(const Plan& plan, std::string_view name) {
    return indexOf(plan, name) + 1;
}

TEST(Recalculation, WithTheSameLimitGivesTheSamePlan) {
    FlightWorld world = threeFixes();
    const Plan before = world.plan;
    recalculatePlan(world.plan, world.input(), 19000);
    EXPECT_EQ(namesOf(world.plan), (Names{"KDEP", "*TOC*", "AAA", "BBB", "CCC", "*TOD*", "KDST"}));
    for (int i = 0; i <= before.planLast; ++i) {
        EXPECT_EQ(world.plan.at(i).pointAltitude, before.at(i).pointAltitude) << i;
        EXPECT_EQ(world.plan.at(i).pointMinutes, before.at(i).pointMinutes) << i;
        EXPECT_EQ(world.plan.at(i).pointTotalDistance, before.at(i).pointTotalDistance) << i;
        EXPECT_EQ(world.plan.at(i).pointFrequency, before.at(i).pointFrequency) << i;
    }
    EXPECT_EQ(world.plan.routeString, before.routeString);
}

TEST(Recalculation, TheAltitudeIsALimitAndPassesTheLevels) {
    FlightWorld world = threeFixes();
    recalculatePlan(world.plan, world.input(), 24000);
    EXPECT_EQ(world.plan.ceilingAltitude, 24000);
    EXPECT_EQ(world.plan.cruiseAltitude, 25000); // a tie goes up to the eastbound level
    EXPECT_EQ(world.plan.peakAltitude, 25000);
    recalculatePlan(world.plan, world.input(), 70000);
    EXPECT_LT(world.plan.cruiseAltitude, 69000); // climb and descent would take more than 80 per cent
    EXPECT_GT(world.plan.cruiseAltitude, 41000);
    recalculatePlan(world.plan, world.input(), 500);
    EXPECT_EQ(world.plan.cruiseAltitude, 1000);
}

TEST(Recalculation, ALoweredLevelBecomesTheLimit) {
    FlightWorld world;
    world.type().CruiseAltitude = 41000;
    world.destination().Longitude = -97.8F; // some 100 miles
    world.build();
    const std::int32_t lowered = world.plan.peakAltitude;
    ASSERT_LT(lowered, 41000);
    recalculatePlan(world.plan, world.input(), lowered);
    EXPECT_EQ(world.plan.ceilingAltitude, lowered);
    EXPECT_LE(world.plan.cruiseAltitude, lowered);
}

TEST(Recalculation, TwoComputedPointsInARowBothGo) {
    FlightWorld world = threeFixes();
    recalculatePlan(world.plan, world.input(), 37000);
    ASSERT_LE(indexOf(world.plan, "STEPC"), world.plan.planLast);
    removeComputedPoints(world.plan);
    EXPECT_EQ(namesOf(world.plan), (Names{"KDEP", "AAA", "BBB", "CCC", "KDST"}));
}

TEST(Recalculation, ATopInTheDeparturesPlaceGoesToo) {
    FlightWorld world;
    world.departure().Elevation = 13300;
    world.type().CruiseAltitude = 9000;
    world.add("FIX", 40.2F, -90);
    world.build();
    ASSERT_EQ(world.plan.at(0).pointName.trimmed(), "*TOC*");
    removeComputedPoints(world.plan);
    EXPECT_EQ(namesOf(world.plan), (Names{"FIX", "FIX", "KDST"}));
    recalculatePlan(world.plan, world.input(), 19000);
    EXPECT_EQ(world.plan.at(0).pointName.trimmed(), "KDEP");
}

TEST(Recalculation, AComputedPointInTheLastSlotIsTakenOnce) {
    Plan plan;
    plan.planLast = 2;
    plan.at(1).pointType = std::string_view("TD");
    plan.at(2).pointType = std::string_view("TD");
    removeComputedPoints(plan);
    EXPECT_EQ(plan.planLast, 0);
}

TEST(Removal, TakesTheFixOutOfTheRoute) {
    FlightWorld world = threeFixes();
    EXPECT_EQ(removePlanPoint(world.plan, world.input(), rowOf(world.plan, "BBB"), 19000), Removal::Done);
    EXPECT_EQ(namesOf(world.plan), (Names{"KDEP", "*TOC*", "AAA", "CCC", "*TOD*", "KDST"}));
    EXPECT_EQ(world.plan.at(3).pointAirway.trimmed(), "");
    EXPECT_EQ(world.plan.routeString.substr(0, 13), "KDEP..AAA.J1.");
}

TEST(Removal, TheLastFixLeavesADirectFlight) {
    FlightWorld world = threeFixes();
    for (const char* name : {"AAA", "BBB", "CCC"})
        EXPECT_EQ(removePlanPoint(world.plan, world.input(), rowOf(world.plan, name), 19000), Removal::Done);
    EXPECT_EQ(namesOf(world.plan), (Names{"KDEP", "*TOC*", "*TOD*", "KDST"}));
}

TEST(Removal, TheAirportsAreRefused) {
    FlightWorld world = threeFixes();
    const int last = world.plan.planLast;
    EXPECT_EQ(removePlanPoint(world.plan, world.input(), 1, 19000), Removal::AirportRefused);
    EXPECT_EQ(removePlanPoint(world.plan, world.input(), last + 1, 19000), Removal::AirportRefused);
    EXPECT_EQ(world.plan.planLast, last);
    EXPECT_EQ(kAirportRefusal, "You may not remove the Departure or Destination Airport");
}

TEST(Removal, ComputedPointsAreRefused) {
    FlightWorld world = threeFixes();
    recalculatePlan(world.plan, world.input(), 37000);
    const Plan before = world.plan;
    for (const char* name : {"*TOC*", "*TOD*", "STEPC", "STEPD"})
        EXPECT_EQ(removePlanPoint(world.plan, world.input(), rowOf(world.plan, name), 37000),
                  Removal::ComputedRefused);
    EXPECT_EQ(namesOf(world.plan), namesOf(before));
    EXPECT_EQ(kComputedRefusal,
              "Step Climb and Descent Points and the Top of Climb and Top of Descent points are calculated "
              "according to the cruise altitude and cannot be removed.");
}

TEST(Removal, ARefusalHasAlreadyTakenTheAltitude) {
    FlightWorld world = threeFixes();
    removePlanPoint(world.plan, world.input(), 1, 23000);
    EXPECT_EQ(world.plan.peakAltitude, 23000);
    EXPECT_EQ(world.plan.ceilingAltitude, 23000);
    EXPECT_EQ(world.plan.cruiseAltitude, 19000);
}

TEST(Removal, RowsBehindTheDestinationDoNothing) {
    FlightWorld world = threeFixes();
    const int last = world.plan.planLast;
    for (const int row : {last + 2, last + 5, 9999, 0, -1})
        EXPECT_EQ(removePlanPoint(world.plan, world.input(), row, 23000), Removal::Nothing) << row;
    EXPECT_EQ(world.plan.peakAltitude, 19000);
    EXPECT_EQ(world.plan.planLast, last);
}

TEST(Removal, TwoInARowKeepTheAltitudeOfTheArrows) {
    FlightWorld world = threeFixes();
    removePlanPoint(world.plan, world.input(), rowOf(world.plan, "AAA"), 15000);
    EXPECT_EQ(world.plan.peakAltitude, 15000); // what the arrows show next
    removePlanPoint(world.plan, world.input(), rowOf(world.plan, "BBB"), world.plan.peakAltitude);
    EXPECT_EQ(world.plan.cruiseAltitude, 15000);
}

TEST(RouteString, RunsAlongOneAirwayGiveOneEntry) {
    FlightWorld world;
    world.type().ClimbRate = 0; // no computed points
    for (const auto& [name, airway] :
         {std::pair{"AAA", "J1"}, {"BBB", "J1"}, {"CCC", "J1"}, {"DDD", ""}, {"EEE", "J2"}})
        world.add(name, 40.5F, -99.0F + static_cast<float>(world.plan.planLast), airway);
    EXPECT_EQ(world.build().routeString, "KDEP..AAA.J1.DDD..EEE.J2.KDST");
}

TEST(RouteString, TheLastNameIsThatOfThePointBeforeTheDestination) {
    FlightWorld world;
    world.type().ClimbRate = 0;
    world.add("AAA", 40.5F, -95, "J1");
    world.add("BBB", 40.5F, -90, "J1"); // skipped with the run, so that it is named here
    EXPECT_EQ(world.build().routeString, "KDEP..AAA.J1.BBB..KDST");
}

TEST(RouteString, AComputedPointBeforeTheDestinationIsNamed) {
    FlightWorld world = threeFixes();
    EXPECT_EQ(world.plan.routeString, "KDEP..AAA.J1.CCC..*TOD*..KDST");
}

TEST(RouteString, ComputedPointsEndNoRun) {
    // A computed point carries the airway of the leg that it lies on.
    FlightWorld world;
    world.type().CruiseAltitude = 19000;
    world.add("AAA", 40.0F, -99.5F, "J1");
    world.add("BBB", 40.5F, -90, "J1");
    world.add("CCC", 40.5F, -85);
    const Plan& plan = world.build();
    EXPECT_EQ(indexOf(plan, "*TOC*"), 2);
    EXPECT_EQ(plan.at(2).pointAirway.trimmed(), "J1");
    EXPECT_EQ(plan.routeString, "KDEP..AAA.J1.CCC..*TOD*..KDST");
}

TEST(RouteString, CodesKeepTheirWidthInsideTheLine) {
    FlightWorld world;
    world.type().ClimbRate = 0;
    world.departure().Icao = std::string_view("K1");
    world.destination().Icao = std::string_view("K2");
    world.add("AAA", 40.5F, -95);
    EXPECT_EQ(world.build().routeString, "K1  ..AAA..K2  ");
}

TEST(RouteString, HoldsAThousandCharacters) {
    FlightWorld world;
    world.type().ClimbRate = 0;
    for (int i = 0; i < 198; ++i) world.add("FIX" + std::to_string(10 + i % 90), 40.5F, -99);
    EXPECT_EQ(world.build().routeString.size(), 1000U);
}

} // namespace
} // namespace gatewise
