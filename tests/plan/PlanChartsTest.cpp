#include "plan/PlanCharts.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace gatewise {
namespace {

/// Two airports and a top of climb between them, `lon1` and `lon2` degrees east on one parallel.
Plan flown(float latitude, float lon1, float lon2) {
    Plan plan;
    plan.planLast = 2;
    plan.totalDistance = 600;
    plan.peakAltitude = 33000;
    plan.departureAirport.Icao = "KAAA";
    plan.departureAirport.Elevation = 1000;
    plan.destinationAirport.Icao = "KBBB";
    for (int i = 0; i <= 2; ++i) {
        plan.at(i).pointLatitude = latitude;
        plan.at(i).pointLongitude = lon1 + (lon2 - lon1) * static_cast<float>(i) / 2;
        plan.at(i).pointTotalDistance = 300 * static_cast<float>(i);
    }
    plan.at(0).pointName = "KAAA";
    plan.at(1).pointName = "*TOC*";
    plan.at(1).pointType = "TC";
    plan.at(1).pointAltitude = 33000;
    plan.at(2).pointName = "KBBB";
    return plan;
}

const DrawingLine& route(const Drawing& drawing) {
    return *std::find_if(drawing.lines.begin(), drawing.lines.end(),
                         [](const DrawingLine& line) { return line.tone == Tone::Route; });
}

TEST(ProfileDrawing, ClimbsFromTheDepartureAndEndsAtTheDestination) {
    const Drawing drawing = profileDrawing(flown(40, -80, -70));
    const auto& points = route(drawing).points;
    ASSERT_EQ(points.size(), 3U);
    EXPECT_LT(points[0].x, points[1].x);
    EXPECT_LT(points[1].x, points[2].x);
    EXPECT_LT(points[1].y, points[0].y) << "up is towards the top of the sheet";
    EXPECT_GT(points[2].y, points[0].y) << "the destination lies lower than the departure";
    EXPECT_EQ(drawing.summary,
              "Vertical profile, KAAA to KBBB, 600 nautical miles, highest altitude 33000 feet");
}

TEST(ProfileDrawing, APlanWithoutLengthIsEmpty) {
    Plan plan;
    EXPECT_TRUE(profileDrawing(plan).lines.empty());
    EXPECT_TRUE(mapDrawing(plan).lines.empty());
}

TEST(MapDrawing, PositionsThatDoNotExistAreNotDrawn) {
    Plan plan = flown(40, -80, -70);
    plan.at(1).pointLatitude = std::nanf("");
    EXPECT_TRUE(mapDrawing(plan).lines.empty());
    plan.at(1).pointLatitude = 91;
    EXPECT_TRUE(mapDrawing(plan).lines.empty());
}

TEST(MapDrawing, EastIsRightAndAGreatCircleBowsToThePole) {
    const Drawing drawing = mapDrawing(flown(50, -120, -60));
    const auto& points = route(drawing).points;
    EXPECT_LT(points.front().x, points.back().x);
    const Drawing straight = mapDrawing(flown(0, -120, -60));
    const auto& line = route(straight).points;
    for (const auto& p : line) EXPECT_NEAR(p.y, 0.5, 1e-6) << "the equator is a straight line";
}

TEST(MapDrawing, CrossesTheDateLineInOnePiece) {
    Plan plan = flown(10, 170, 190);
    plan.at(2).pointLongitude = -170;
    plan.at(1).pointLongitude = 180;
    const auto drawing = mapDrawing(plan);
    const auto& points = route(drawing).points;
    for (std::size_t i = 1; i < points.size(); ++i) EXPECT_LT(std::fabs(points[i].x - points[i - 1].x), 0.1);
    for (const auto& p : points) {
        EXPECT_GE(p.x, 0.0);
        EXPECT_LE(p.x, 1.0);
    }
}

TEST(MapDrawing, APolarRouteStaysOnTheSheet) {
    Plan plan = flown(85, 10, 10);
    plan.at(2).pointLongitude = -170;
    const auto drawing = mapDrawing(plan);
    for (const auto& p : route(drawing).points) {
        EXPECT_GE(p.y, 0.0);
        EXPECT_LE(p.y, 1.0);
    }
}

} // namespace
} // namespace gatewise
