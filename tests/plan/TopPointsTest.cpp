#include "plan/TopPoints.h"

#include "HandMade.h"

#include <array>
#include <gtest/gtest.h>

namespace gatewise {
namespace {

using test::handMade;

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

} // namespace
} // namespace gatewise
