#include "map/Globe.h"
#include "map/Projection.h"

#include <cmath>
#include <gtest/gtest.h>
#include <numbers>

namespace gatewise::map {
namespace {

Vector at(double latitude, double longitude) {
    return vectorOf(Spot{latitude, longitude});
}

TEST(Globe, OneDegreeIsSixtyMiles) {
    EXPECT_NEAR(milesBetween({0, 0}, {0, 1}), 60, 1e-9);
    EXPECT_NEAR(milesBetween({0, 179.5}, {0, -179.5}), 60, 1e-9);
    EXPECT_NEAR(milesBetween({89.5, 0}, {89.5, 180}), 60, 1e-9);
    EXPECT_EQ(milesBetween({50, 8}, {50, 8}), 0);
}

TEST(Globe, TheWayOverTheDateLineStaysNearIt) {
    const auto way = greatCircle(at(0, 170), at(0, -170), 5 * kDegree);
    ASSERT_EQ(way.size(), 5U);
    EXPECT_NEAR(spotOf(way[2]).latitude, 0, 1e-9);
    EXPECT_NEAR(std::fabs(spotOf(way[2]).longitude), 180, 1e-9);
}

TEST(Globe, BetweenOppositeMeridiansTheWayLeadsOverThePole) {
    const Vector middle = between(at(60, 0), at(60, 180), 0.5);
    EXPECT_NEAR(spotOf(middle).latitude, 90, 1e-6);
    // Opposite points have many ways; the one over the north pole is taken.
    EXPECT_NEAR(spotOf(between(at(0, 20), at(0, -160), 0.5)).latitude, 90, 1e-6);
    // From pole to pole it is the meridian of Greenwich.
    const Spot greenwich = spotOf(between(at(90, 0), at(-90, 0), 0.5));
    EXPECT_NEAR(greenwich.latitude, 0, 1e-6);
    EXPECT_NEAR(greenwich.longitude, 0, 1e-6);
}

TEST(Globe, AWayWithoutLengthIsItsPointTwice) {
    const auto way = greatCircle(at(10, 10), at(10, 10), kDegree);
    ASSERT_EQ(way.size(), 2U);
    EXPECT_EQ(way[0], way[1]);
}

TEST(Globe, TheGreatCircleBulgesToThePole) {
    // Half way between 120 W and 60 W on 50 N: tan(lat) = tan 50 / cos 30.
    const Spot middle = spotOf(between(at(50, -120), at(50, -60), 0.5));
    EXPECT_NEAR(middle.latitude, std::atan(std::tan(50 * kDegree) / std::cos(30 * kDegree)) / kDegree, 1e-9);
    EXPECT_NEAR(middle.longitude, -90, 1e-9);
}

TEST(Globe, APoleHasNoLongitude) {
    EXPECT_EQ(spotOf({0, 0, 1}).longitude, 0);
    EXPECT_EQ(spotOf({0, 0, 1}).latitude, 90);
    EXPECT_EQ(spotOf(at(0, -180)).longitude, 180);
}

TEST(Projection, NorthIsUpAndAreasAreTrue) {
    const Projection flat(at(0, 0));
    const PlanePoint north = flat.place(at(90, 0));
    EXPECT_NEAR(north.x, 0, 1e-12);
    EXPECT_NEAR(north.y, std::numbers::sqrt2, 1e-12); // the half sphere has the area of a disc of that radius
    EXPECT_NEAR(flat.place(at(0, 90)).x, std::numbers::sqrt2, 1e-12);
    EXPECT_NEAR(planeRadius(std::numbers::pi), 2, 1e-12);
}

TEST(Projection, LiftIsTheWayBack) {
    for (const Spot middle : {Spot{33, -84}, Spot{-80, 179}, Spot{90, 0}, Spot{-90, 0}}) {
        const Projection flat(vectorOf(middle));
        for (const Spot spot : {Spot{10, 20}, Spot{-70, 175}, Spot{89, -179}}) {
            const Vector v = vectorOf(spot);
            EXPECT_NEAR(arcBetween(flat.lift(flat.place(v)), v), 0, 1e-9);
        }
    }
}

TEST(Projection, AtTheNorthPoleTheDateLineIsUp) {
    const PlanePoint p = Projection(at(90, 0)).place(at(60, 180));
    EXPECT_NEAR(p.x, 0, 1e-9);
    EXPECT_GT(p.y, 0);
}

} // namespace
} // namespace gatewise::map
