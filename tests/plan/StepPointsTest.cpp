#include "plan/StepPoints.h"

#include "PlanWorld.h"
#include "plan/Performance.h"

#include <gtest/gtest.h>

namespace gatewise {
namespace {

using test::FlightWorld;

/// Points 600 miles apart on the equator with altitudes given by hand.
Plan altitudes(std::int32_t cruise, const std::vector<std::int32_t>& feet) {
    FlightWorld world;
    Plan plan;
    loadAircraftPerformance(plan, world.tables.aircraft, "733");
    plan.cruiseAltitude = cruise;
    plan.planLast = static_cast<std::int16_t>(feet.size() - 1);
    for (std::size_t i = 0; i < feet.size(); ++i) {
        PlanPoint& point = plan.points[i];
        point.pointName = "P" + std::to_string(i);
        point.pointAirway = "A" + std::to_string(i);
        point.pointFrequency = "11" + std::to_string(i) + ".00";
        point.pointAltitude = feet[i];
        point.pointHeading = 90;
        point.pointLegDistance = static_cast<float>(i);
        point.pointLongitude = static_cast<float>(10 * i);
    }
    return plan;
}

/// "up 23000, down 24000": what stands between the fixes.
std::string stepsOf(const Plan& plan) {
    std::string out;
    for (int i = 0; i <= plan.planLast; ++i) {
        const auto type = plan.at(i).pointType.view();
        if (type == "SU" || type == "SD")
            out += (type == "SU" ? "up " : "down ") + std::to_string(plan.at(i).pointAltitude) + " ";
    }
    return out;
}

std::string stepsAt(std::int32_t cruise) {
    Plan plan = altitudes(cruise, {1000, cruise, cruise, 1000});
    EXPECT_TRUE(insertStepPoints(plan));
    return stepsOf(plan);
}

TEST(StepPoints, TargetsByLevel) {
    EXPECT_EQ(stepsAt(41000), "up 23000 up 33000 down 35000 down 24000 ");
    EXPECT_EQ(stepsAt(37000), "up 23000 up 33000 down 35000 down 24000 ");
    EXPECT_EQ(stepsAt(35001), "up 23000 up 33000 down 35000 down 24000 ");
    EXPECT_EQ(stepsAt(35000), "up 23000 up 33000 down 24000 ");
    EXPECT_EQ(stepsAt(34999), "");
    EXPECT_EQ(stepsAt(34000), "");
    EXPECT_EQ(stepsAt(33001), "");
    EXPECT_EQ(stepsAt(33000), "up 23000 down 24000 ");
    EXPECT_EQ(stepsAt(31000), "up 23000 down 24000 ");
    EXPECT_EQ(stepsAt(27001), "up 23000 down 24000 ");
    EXPECT_EQ(stepsAt(27000), "up 23000 ");
    EXPECT_EQ(stepsAt(23001), "up 23000 ");
    EXPECT_EQ(stepsAt(23000), "");
    EXPECT_EQ(stepsAt(9000), "");
}

TEST(StepPoints, AStepStopsShortOfALowerNextFix) {
    Plan plan = altitudes(37000, {1000, 21000, 31000, 37000, 36000, 26000, 1000});
    ASSERT_TRUE(insertStepPoints(plan));
    // On the way down 35,000 is crossed before 26,000, and 27,000 behind the new point at 35,000.
    EXPECT_EQ(stepsOf(plan), "up 21000 up 31000 down 35000 down 26000 ");
}

TEST(StepPoints, AFixExactlyAtTheTargetEndsTheClimbPass) {
    Plan plan = altitudes(37000, {1000, 20000, 37000, 1000});
    ASSERT_TRUE(stepClimbAt(plan, 20000));
    EXPECT_EQ(stepsOf(plan), "");
    // Behind the cruise it does not.
    plan = altitudes(37000, {37000, 20000, 10000, 30000});
    ASSERT_TRUE(stepClimbAt(plan, 20000));
    EXPECT_EQ(stepsOf(plan), "up 23000 ");
}

TEST(StepPoints, AFixExactlyAtTheTargetBehindTheCruiseEndsTheDescentPass) {
    Plan plan = altitudes(37000, {1000, 37000, 27000, 30000, 1000});
    ASSERT_TRUE(stepDescentAt(plan, 27000));
    EXPECT_EQ(stepsOf(plan), "");
    plan = altitudes(37000, {27000, 30000, 1000, 37000});
    ASSERT_TRUE(stepDescentAt(plan, 27000));
    EXPECT_EQ(stepsOf(plan), "down 24000 ");
}

TEST(StepPoints, TheStepItselfIsNotCrossedAgain) {
    Plan plan = altitudes(37000, {1000, 37000, 1000});
    ASSERT_TRUE(stepClimbAt(plan, 20000));
    EXPECT_EQ(plan.planLast, 3);
    EXPECT_EQ(plan.at(1).pointAltitude, 23000);
}

TEST(StepPoints, TargetZeroCrossesOnlySeaLevel) {
    Plan plan = altitudes(35000, {-400, 37000, 35000, -300});
    ASSERT_TRUE(stepClimbAt(plan, 0));
    EXPECT_EQ(plan.at(1).pointType.view(), "SU");
    EXPECT_EQ(plan.at(1).pointAltitude, 0);
    ASSERT_TRUE(stepDescentAt(plan, 0));
    EXPECT_EQ(stepsOf(plan), "up 0 down 0 ");
}

TEST(StepPoints, TheNewSlotTakesCourseAndAirwayOfTheNextFix) {
    Plan plan = altitudes(37000, {1000, 37000, 1000});
    plan.at(1).pointTotalDistance = 123;
    plan.at(1).pointMinutes = 45;
    ASSERT_TRUE(stepClimbAt(plan, 20000));
    const PlanPoint& step = plan.at(1);
    EXPECT_EQ(step.pointName.view(), "STEPC");
    EXPECT_EQ(step.pointId.trimmed(), "STEPC");
    EXPECT_EQ(step.pointDescription.trimmed(), "Step Climb Point");
    EXPECT_EQ(step.pointAirway.trimmed(), "A1");
    EXPECT_EQ(step.pointHeading, 90);
    EXPECT_EQ(step.pointFrequency.view(), "111.00"); // of the point that stood here
    EXPECT_EQ(step.pointTotalDistance, 123);
    EXPECT_EQ(step.pointMinutes, 45);
    EXPECT_EQ(plan.at(2).pointName.trimmed(), "P1");
    EXPECT_EQ(plan.at(2).pointLegDistance, 2); // all but the leg was moved
    EXPECT_EQ(plan.at(3).pointName.trimmed(), "P2");

    ASSERT_TRUE(stepDescentAt(plan, 27000));
    EXPECT_EQ(plan.at(3).pointName.view(), "STEPD");
    EXPECT_EQ(plan.at(3).pointDescription.trimmed(), "Step Descent Point");
    EXPECT_EQ(plan.at(3).pointType.view(), "SD");
}

/// Miles from point 0 to the step behind it, along the equator.
double milesTo(std::int32_t from, std::int32_t next, std::int32_t target, StepDirection direction) {
    Plan plan = altitudes(37000, {from, 0, next});
    EXPECT_TRUE(placeStepPoint(plan, target, 0, direction));
    return static_cast<double>(plan.at(1).pointLongitude) * 60;
}

/// Miles of a flight from one altitude to another at one rate and one speed.
double flown(double from, double to, double rate, double speed) {
    double miles = 0;
    const double step = rate / 60;
    for (double a = from; step > 0 ? a <= to : a > to; a += step)
        miles += (trueAirspeed(a, speed) + trueAirspeed(a + step, speed)) / 7200;
    return miles;
}

TEST(StepPoints, ClimbsFlyTheBandsFromTheFix) {
    // 2,400 feet a minute make 2,000 up to 15,000, 1,700 up to 25,000 and 1,400 up to 30,000 feet. Positions
    // are whole miles, and the cosine as a 32-bit float costs some thousandths.
    const double b1 = flown(1000, 10000, 2000, 240);
    const double b2 = flown(10000, 15000, 2000, 378);
    const double b3 = flown(15000, 20000, 1700, 378);
    const double b3whole = flown(15000, 25000, 1700, 378);
    const double b4 = flown(25000, 30000, 1400, 399);
    EXPECT_NEAR(milesTo(1000, 37000, 20000, StepDirection::Climb), b1 + b2 + b3, 0.9);
    EXPECT_NEAR(milesTo(1000, 37000, 30000, StepDirection::Climb), b1 + b2 + b3whole + b4, 0.9);
    EXPECT_NEAR(milesTo(10000, 37000, 20000, StepDirection::Climb), b2 + b3, 0.9);
    EXPECT_NEAR(milesTo(15000, 37000, 20000, StepDirection::Climb), b3, 0.9);
    EXPECT_NEAR(milesTo(15000, 37000, 30000, StepDirection::Climb), b3whole + b4, 0.9);
    EXPECT_NEAR(milesTo(25000, 37000, 30000, StepDirection::Climb), b4, 0.9);
    // Any other target flies as to 20,000, but no further than itself.
    EXPECT_NEAR(milesTo(1000, 37000, 8000, StepDirection::Climb), flown(1000, 8000, 2000, 240), 0.9);
    EXPECT_NEAR(milesTo(1000, 37000, 26000, StepDirection::Climb), b1 + b2 + b3, 0.9);
}

TEST(StepPoints, HighFixesHaveNoWayTo20000) {
    // No way at all leaves the offset of the smallest angle: 1.7 miles at the equator.
    for (const std::int32_t from : {25000, 29999, 30000, 36000})
        EXPECT_NEAR(milesTo(from, 37000, 20000, StepDirection::Climb), 1.68, 0.05) << from;
}

TEST(StepPoints, DescentsFlyDownToTheirTarget) {
    const double rate = -2000 / static_cast<double>(1.2F);
    const double a = flown(37000, 25000, rate, 399);
    const double b = flown(25000, 10000, rate, 378);
    EXPECT_NEAR(milesTo(37000, 1000, 35000, StepDirection::Descent), flown(37000, 35000, rate, 399), 0.9);
    EXPECT_NEAR(milesTo(37000, 1000, 27000, StepDirection::Descent), flown(37000, 27000, rate, 399), 0.9);
    EXPECT_NEAR(milesTo(28000, 1000, 27000, StepDirection::Descent), flown(28000, 27000, rate, 399), 0.9);
    EXPECT_NEAR(milesTo(37000, 1000, 5000, StepDirection::Descent), a + b + flown(10000, 5000, rate, 399),
                1.2);
    EXPECT_NEAR(milesTo(37000, 1000, 12000, StepDirection::Descent), a + flown(25000, 12000, rate, 378), 0.9);
    EXPECT_NEAR(milesTo(25000, 1000, 12000, StepDirection::Descent), flown(25000, 12000, rate, 378), 0.9);
    EXPECT_NEAR(milesTo(9000, 1000, 5000, StepDirection::Descent), flown(9000, 5000, rate, 399), 0.9);
    // Below their band the two high targets are as any other: there is nothing to fly.
    EXPECT_NEAR(milesTo(30000, 1000, 35000, StepDirection::Descent), 1.68, 0.05);
    EXPECT_NEAR(milesTo(20000, 1000, 27000, StepDirection::Descent), 1.68, 0.05);
}

TEST(StepPoints, AFullTableEndsThePass) {
    Plan plan = altitudes(37000, std::vector<std::int32_t>(200, 37000));
    plan.at(0).pointAltitude = 1000;
    EXPECT_FALSE(stepClimbAt(plan, 20000));
    EXPECT_EQ(plan.planLast, 199);
    EXPECT_EQ(stepsOf(plan), "");
    plan.planLast = 198;
    EXPECT_TRUE(stepClimbAt(plan, 20000));
    EXPECT_FALSE(stepClimbAt(plan, 30000));
    EXPECT_EQ(plan.planLast, 199);
}

TEST(StepPoints, RatesThatNeverGetThereEndThePass) {
    Plan plan = altitudes(37000, {1000, 37000, 1000});
    plan.climbRate = 0;
    EXPECT_FALSE(stepClimbAt(plan, 20000));
    plan = altitudes(37000, {1000, 37000, 1000});
    plan.descentRate = 0;
    EXPECT_FALSE(stepDescentAt(plan, 27000));
    EXPECT_FALSE(insertStepPoints(plan));
}

} // namespace
} // namespace gatewise
