#include "map/Clip.h"

#include <cmath>
#include <gtest/gtest.h>

namespace gatewise::map {
namespace {

Vector at(double latitude, double longitude) {
    return vectorOf(Spot{latitude, longitude});
}

Outline ring(std::initializer_list<Spot> spots) {
    std::vector<Vector> points;
    Spot last = *(spots.end() - 1);
    for (const Spot& spot : spots) {
        const auto edge = greatCircle(vectorOf(last), vectorOf(spot), 2 * kDegree);
        points.insert(points.end(), edge.begin(), edge.end() - 1);
        last = spot;
    }
    return outlineOf(points, true);
}

/// Whether what is filled holds a point, by the even-odd rule.
bool filled(const Cut& cut, const Clipper& clipper, const Vector& v) {
    const PlanePoint p = clipper.projection().place(v);
    bool inside = cut.inverted;
    for (const Path& path : cut.rings) {
        PlanePoint a = path.back();
        for (const PlanePoint& b : path) {
            if ((a.y < p.y) != (b.y < p.y) && a.x + (b.x - a.x) * (p.y - a.y) / (b.y - a.y) > p.x)
                inside = !inside;
            a = b;
        }
    }
    return inside;
}

TEST(Clip, ALineIsCutAtTheEdgeOfTheDisc) {
    const Clipper clipper(Projection(at(0, 0)), 10 * kDegree);
    std::vector<Path> parts;
    clipper.addLine(greatCircle(at(0, -30), at(0, 30), 7 * kDegree), parts);
    ASSERT_EQ(parts.size(), 1U);
    EXPECT_NEAR(parts[0].front().x, -planeRadius(10 * kDegree), 1e-6);
    EXPECT_NEAR(parts[0].back().x, planeRadius(10 * kDegree), 1e-6);
}

TEST(Clip, AnEdgeWithBothEndsOutsideIsStillSeen) {
    const Clipper clipper(Projection(at(0, 0)), 10 * kDegree);
    std::vector<Path> parts;
    clipper.addLine({at(1, -30), at(1, 30)}, parts);
    ASSERT_EQ(parts.size(), 1U);
    parts.clear();
    clipper.addLine({at(30, -30), at(30, 30)}, parts);
    EXPECT_TRUE(parts.empty());
}

TEST(Clip, ALineThatLeavesAndComesBackIsTwoParts) {
    const Clipper clipper(Projection(at(0, 0)), 10 * kDegree);
    std::vector<Path> parts;
    clipper.addLine({at(0, 0), at(0, 20), at(5, 20), at(5, 0)}, parts);
    EXPECT_EQ(parts.size(), 2U);
}

TEST(Clip, ARingAroundTheWholeDiscFillsIt) {
    const Outline continent = ring({{-40, -40}, {-40, 40}, {40, 40}, {40, -40}});
    const Clipper clipper(Projection(at(5, 5)), 3 * kDegree);
    Cut cut;
    clipper.addRing(continent, cut);
    EXPECT_TRUE(cut.lines.empty());
    EXPECT_TRUE(filled(cut, clipper, at(5, 5)));
    EXPECT_TRUE(filled(cut, clipper, at(6, 3)));
}

TEST(Clip, ARingElsewhereFillsNothing) {
    const Outline island = ring({{60, 60}, {60, 65}, {65, 65}, {65, 60}});
    const Clipper clipper(Projection(at(5, 5)), 30 * kDegree);
    Cut cut;
    clipper.addRing(island, cut);
    EXPECT_TRUE(cut.rings.empty());
    EXPECT_FALSE(cut.inverted);
}

TEST(Clip, LandAroundTheOppositePointDoesNotFloodTheMap) {
    // Either way around: what a ring encloses is the smaller part of the sphere.
    for (const Outline& land : {ring({{-40, 140}, {-40, -140}, {40, -140}, {40, 140}}),
                                ring({{40, 140}, {40, -140}, {-40, -140}, {-40, 140}})}) {
        const Clipper clipper(Projection(at(0, 0)), 150 * kDegree);
        Cut cut;
        clipper.addRing(land, cut);
        EXPECT_TRUE(cut.inverted);
        EXPECT_FALSE(filled(cut, clipper, at(0, 0)));
        EXPECT_FALSE(filled(cut, clipper, at(50, 60)));
        EXPECT_TRUE(filled(cut, clipper, at(0, 148)));
    }
}

TEST(Clip, APoleInsideOfLandIsFilled) {
    const Outline land = ring({{-70, 0}, {-70, 90}, {-70, 180}, {-70, -90}});
    for (const Spot middle : {Spot{-89, 0}, Spot{-60, 100}, Spot{-30, -179}}) {
        const Clipper clipper(Projection(vectorOf(middle)), 80 * kDegree);
        Cut cut;
        clipper.addRing(land, cut);
        EXPECT_TRUE(filled(cut, clipper, at(-90, 0))) << middle.latitude;
        EXPECT_FALSE(filled(cut, clipper, at(-55, 100))) << middle.latitude;
    }
}

TEST(Clip, LandOverTheDateLineIsWhole) {
    const Outline land = ring({{60, 170}, {70, 170}, {70, -170}, {60, -170}});
    const Clipper clipper(Projection(at(60, 150)), 40 * kDegree);
    Cut cut;
    clipper.addRing(land, cut);
    EXPECT_TRUE(filled(cut, clipper, at(65, 180)));
    EXPECT_TRUE(filled(cut, clipper, at(65, -175)));
    EXPECT_FALSE(filled(cut, clipper, at(65, 160)));
}

TEST(Clip, OfARingHalfInsideTheOutlineIsOnlyWhatIsThere) {
    const Outline land = ring({{-5, -5}, {-5, 30}, {5, 30}, {5, -5}});
    const Clipper clipper(Projection(at(0, 0)), 10 * kDegree);
    Cut cut;
    clipper.addRing(land, cut);
    EXPECT_TRUE(filled(cut, clipper, at(0, 8)));
    EXPECT_FALSE(filled(cut, clipper, at(8, 0)));
    for (const Path& line : cut.lines) {
        for (const PlanePoint& p : line) EXPECT_LE(std::hypot(p.x, p.y), planeRadius(10 * kDegree) + 1e-6);
    }
}

} // namespace
} // namespace gatewise::map
