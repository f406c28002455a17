#include "map/LandData.h"

#include "platform/Files.h"

#include <gtest/gtest.h>

namespace gatewise::map {
namespace {

Bytes shipped() {
    return *files::readAll(std::string(GATEWISE_TEST_SOURCE_DIR) + "/data/land/land.bin");
}

/// Whether land's outlines hold a spot, counted along the way to the north pole, which is sea.
bool onLand(const LandLevel& level, const Spot& spot) {
    const Vector a = vectorOf(spot);
    const Vector pole = {0, 0, 1};
    const Vector plane = cross(a, pole);
    bool inside = false;
    for (const Outline& ring : level.land) {
        for (std::size_t i = 0; i < ring.points.size(); ++i) {
            const auto wide = [&](std::size_t k) {
                const auto& p = ring.points[k % ring.points.size()];
                return Vector{static_cast<double>(p[0]), static_cast<double>(p[1]),
                              static_cast<double>(p[2])};
            };
            const Vector b = wide(i);
            const Vector c = wide(i + 1);
            if ((dot(plane, b) < 0) == (dot(plane, c) < 0)) continue;
            const double share = dot(plane, b) / (dot(plane, b) - dot(plane, c));
            const Vector x = unit(
                {b[0] + share * (c[0] - b[0]), b[1] + share * (c[1] - b[1]), b[2] + share * (c[2] - b[2])});
            // On the near half of the meridian and north of the spot.
            if (x[0] * a[0] + x[1] * a[1] > 0 && x[2] > a[2]) inside = !inside;
        }
    }
    return inside;
}

TEST(Land, TheShippedFileHasTheWorldInFiveDegreesOfDetail) {
    const Bytes bytes = shipped();
    EXPECT_LT(bytes.size(), 3'000'000U);
    const Land land = Land(bytes);
    ASSERT_EQ(land.levels(), 5U);
    for (std::size_t i = 1; i < land.levels(); ++i) {
        EXPECT_GT(land.at(i).tolerance, land.at(i - 1).tolerance);
        EXPECT_LE(land.at(i).land.size(), land.at(i - 1).land.size());
    }
    for (std::size_t i = 0; i < land.levels(); ++i) {
        const LandLevel& level = land.at(i);
        EXPECT_TRUE(onLand(level, {39.1, -94.6})) << "Kansas City";
        EXPECT_TRUE(onLand(level, {-80, 45})) << "Antarctica";
        EXPECT_TRUE(onLand(level, {66, 179.5})) << "east of the date line";
        EXPECT_FALSE(onLand(level, {30, -40})) << "Atlantic";
        EXPECT_FALSE(onLand(level, {42, 51})) << "Caspian Sea";
        EXPECT_FALSE(level.borders.empty());
        EXPECT_FALSE(level.lakes.empty());
    }
}

TEST(Land, ALevelIsAsCoarseAsItMayBe) {
    const Land land = Land(shipped());
    EXPECT_EQ(land.level(10), &land.at(4));
    EXPECT_EQ(land.level(0.02 * kDegree), &land.at(2));
    EXPECT_EQ(land.level(1e-9), &land.at(0));
    EXPECT_EQ(Land().level(1), nullptr);
}

TEST(Land, AFileThatBreaksOffGivesNoLand) {
    const Bytes whole = shipped();
    for (const std::size_t length : {std::size_t{0}, std::size_t{7}, std::size_t{8}, std::size_t{12},
                                     std::size_t{20}, whole.size() / 2, whole.size() - 1}) {
        const Bytes part(whole.begin(), whole.begin() + static_cast<std::ptrdiff_t>(length));
        EXPECT_EQ(Land(part).levels(), 0U) << length;
    }
    Bytes longer = whole;
    longer.push_back(0);
    EXPECT_EQ(Land(longer).levels(), 0U);
    Bytes other = whole;
    other[0] = 'X';
    EXPECT_EQ(Land(other).levels(), 0U);
}

TEST(Land, AMissingFileGivesNoLand) {
    EXPECT_EQ(readLand("/nowhere/land.bin")->levels(), 0U);
}

TEST(Simplified, KeepsEndsAndWhatIsFarOff) {
    const auto at = [](double lat, double lon) { return vectorOf(Spot{lat, lon}); };
    const std::vector<Vector> line{at(0, 0), at(0.5, 1), at(1, 2), at(0, 3)};
    const auto out = simplified(line, 0.1 * kDegree);
    ASSERT_EQ(out.size(), 3U);
    EXPECT_EQ(out[1], line[2]);
    EXPECT_EQ(simplified({line[0], line[3]}, 1).size(), 2U);
    EXPECT_EQ(simplified(line, 0).size(), 4U);
    EXPECT_TRUE(simplified({}, 1).empty());
    // Over the date line as anywhere else.
    EXPECT_EQ(simplified({at(0, 179), at(0, 180), at(0, -179)}, 0.01 * kDegree).size(), 2U);
}

TEST(OutlineOf, TooFewPointsGiveNone) {
    EXPECT_TRUE(outlineOf({{1, 0, 0}, {0, 1, 0}}, true).points.empty());
    EXPECT_TRUE(outlineOf({{1, 0, 0}}, false).points.empty());
    EXPECT_EQ(outlineOf({{1, 0, 0}, {0, 1, 0}, {0, 0, 1}}, true).turn, 1);
    EXPECT_EQ(outlineOf({{1, 0, 0}, {0, 0, 1}, {0, 1, 0}}, true).turn, -1);
}

} // namespace
} // namespace gatewise::map
