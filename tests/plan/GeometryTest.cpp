#include "plan/Geometry.h"

#include "platform/Files.h"

#include <cmath>
#include <filesystem>
#include <gtest/gtest.h>
#include <limits>
#include <unistd.h>

namespace gatewise {
namespace {

TEST(Distance, SampleValuesWithTheirCourses) {
    float course = 0;
    EXPECT_NEAR(Distance(47.45F, -122.31F, 33.94F, -118.41F, course), 829.5, 0.05);
    EXPECT_NEAR(course, 166.34, 0.005);
    EXPECT_NEAR(Distance(33.94F, -118.41F, 47.45F, -122.31F, course), 829.5, 0.05);
    EXPECT_NEAR(course, -11.10, 0.005);
    EXPECT_NEAR(Distance(-33.9F, 151.2F, -37.7F, 144.8F, course), 385.8, 0.05);
    EXPECT_NEAR(course, -124.30, 0.005);
}

TEST(Distance, TwoIdenticalPositionsOnTheEquatorLieHalfATenthApart) {
    float course = 0;
    // D, L and S are all moved to 0.0005554 degrees, 0.033324 miles each; D and L make the right-angled
    // triangle.
    EXPECT_NEAR(Distance(0, 10, 0, 10, course), 0.033324 * std::sqrt(2.0), 1e-5);
    EXPECT_NEAR(course, 45, 1e-3);
}

TEST(Distance, AcrossTheEquatorTheSumIsMovedFromZero) {
    float course = 0;
    EXPECT_NEAR(Distance(1, 20, -1, 20, course), 120, 0.001);
    EXPECT_NEAR(course, 180, 0.02);
    EXPECT_NEAR(Distance(-1, 20, 1, 20, course), 120, 0.001);
    EXPECT_NEAR(course, 0, 0.02);
}

TEST(Distance, BothEndsOfTheSmallSpanAreMoved) {
    // 2^-12 = 0.000244... lies inside the span of 0.0002777, 2^-11 outside of it.
    float course = 0;
    const float inside = std::ldexp(1.0F, -12);
    const float outside = std::ldexp(1.0F, -11);
    EXPECT_NEAR(Distance(0, 0, 2, inside, course), 120, 0.001);
    const double moved = static_cast<double>(course);
    EXPECT_NEAR(moved, std::atan((std::ldexp(1.0, -12) + 0.0005554) / 2) * 180 / M_PI, 1e-5);
    Distance(0, 0, 2, outside, course);
    EXPECT_NEAR(static_cast<double>(course), std::atan(std::ldexp(1.0, -11) / 2) * 180 / M_PI, 1e-5);
    Distance(0, 0, 2, -inside, course); // moved to the east of the meridian
    EXPECT_GT(course, 0);
}

TEST(Distance, TheDateLineIsNoBorder) {
    float course = 0;
    EXPECT_NEAR(Distance(0, 179, 0, -179, course), 120, 0.001);
    EXPECT_NEAR(course, 90, 0.02);
    EXPECT_NEAR(Distance(0, -179, 0, 179, course), 120, 0.001);
    EXPECT_NEAR(course, -90, 0.02);
}

TEST(Distance, NoNumberGivesNoneAndLeavesTheCourse) {
    float course = 12;
    EXPECT_FALSE(std::isfinite(Distance(std::numeric_limits<float>::quiet_NaN(), 0, 1, 1, course)));
    EXPECT_FALSE(std::isfinite(Distance(0, 0, 1, std::numeric_limits<float>::infinity(), course)));
    EXPECT_EQ(course, 12);
}

TEST(Offset, OneDegreeNorthEastSouthWest) {
    EXPECT_NEAR(offsetLatitude(60, 10, 0), 11, 1e-9);
    // A course of exactly 0 stands for 1E-8, and q = 1 is held at 0.9999999: 0.028 degrees east of the
    // meridian.
    EXPECT_NEAR(offsetLongitude(60, 10, 20, 0, 11), 20.028, 0.001);
    EXPECT_NEAR(offsetLatitude(60, 10, 180), 9, 1e-9);

    const double lat = offsetLatitude(60, 0, 90);
    EXPECT_NEAR(lat, 0, 1e-9);
    EXPECT_NEAR(offsetLongitude(60, 0, 20, 90, lat), 21, 1e-4);
    EXPECT_NEAR(offsetLongitude(60, 0, 20, 270, lat), 19, 1e-4);
    EXPECT_NEAR(offsetLongitude(60, 0, 20, -90, lat), 19, 1e-4);
}

TEST(Offset, LongitudeWrapsAtBothSidesOfTheDateLine) {
    EXPECT_NEAR(offsetLongitude(60, 0, 179.5, 90, 0), -179.5, 1e-4);
    EXPECT_NEAR(offsetLongitude(60, 0, -179.5, 270, 0), 179.5, 1e-4);
    // q as a 32-bit float moves w by up to a ten-thousandth of a degree: some of these land on -180 itself.
    for (int i = -4000; i <= 4000; ++i) {
        const double start = -179 + i * 1e-7;
        const float reached = offsetLongitude(60, 0, start, 270, 0);
        EXPECT_GT(reached, -180) << start;
        EXPECT_LE(reached, 180) << start;
    }
}

TEST(Offset, CosineHeldAt0_9999999IsThe32BitFloat) {
    // No way at all: q is 1, held at the 32-bit float next to 0.9999999, which is 1 - 2^-23.
    const double w = std::acos(1 - std::ldexp(1.0, -23)) * 180 / M_PI;
    const double lat = offsetLatitude(0, 45, 30);
    EXPECT_NEAR(lat, 45, 1e-9);
    EXPECT_NEAR(offsetLongitude(0, 45, 0, 30, lat), w, 1e-7);
    EXPECT_NEAR(offsetLongitude(0, 45, 0, -30, lat), -w, 1e-7);
}

TEST(Offset, ThePoleAndWhatLiesFurtherOutHaveNoResult) {
    EXPECT_TRUE(std::isnan(offsetLongitude(60, 90, 0, 10, 89)));
    EXPECT_TRUE(std::isnan(offsetLatitude(0, 90, 10)));
    EXPECT_TRUE(std::isnan(offsetLongitude(60, 10, 0, 90, 50))); // latitude that the way cannot reach
}

/// A simulator folder with a table whose cell (lon, lat) holds a value of its own.
class MagneticHeading : public testing::Test {
protected:
    void SetUp() override {
        folder = std::filesystem::temp_directory_path() / ("plan_magdec_" + std::to_string(::getpid()));
        std::filesystem::create_directories(folder / "SCENERY");
    }
    void TearDown() override { std::filesystem::remove_all(folder); }

    void write(const Bytes& bytes) const {
        ASSERT_FALSE(files::replace(files::textOf(folder / "SCENERY" / "magdec.bgl"), bytes));
    }
    static void setCell(Bytes& bytes, int column, int row, std::int16_t value) {
        detail::storeField(value, bytes.data() + 136 + 2 * (column * 181 + row));
    }
    [[nodiscard]] MagneticTable table() const { return MagneticTable(files::textOf(folder)); }

    std::filesystem::path folder;
    Bytes whole = Bytes(136 + 2 * 360 * 181, 0);
};

TEST_F(MagneticHeading, TakesTheCellOfTheTruncatedPosition) {
    setCell(whole, 237, 137, 2000); // 47 north, -123 + 360
    setCell(whole, 238, 137, 3000); // -122
    write(whole);
    const MagneticTable magnetic = table();
    EXPECT_FLOAT_EQ(magnetic.magneticHeading(47.45F, -122.31F, 100), 100 - 16.5F);
    EXPECT_FLOAT_EQ(magnetic.magneticHeading(47.99F, -123.01F, 100), 89);
    EXPECT_FLOAT_EQ(magnetic.magneticHeading(48.01F, -123.01F, 100), 100);
}

TEST_F(MagneticHeading, HalfADegreeWestIsColumnZero) {
    setCell(whole, 0, 90, 1000);
    setCell(whole, 359, 90, 2000);
    write(whole);
    EXPECT_FLOAT_EQ(table().magneticHeading(0.5F, -0.5F, 100), 94.5F);
    EXPECT_FLOAT_EQ(table().magneticHeading(-0.5F, 0.5F, 100), 94.5F);
    EXPECT_FLOAT_EQ(table().magneticHeading(0.5F, -1.5F, 100), 89);
}

TEST_F(MagneticHeading, LatitudeNinetyReadsTheLastRowOfItsColumn) {
    setCell(whole, 10, 180, 1000);
    setCell(whole, 359, 180, 2000);
    write(whole);
    EXPECT_FLOAT_EQ(table().magneticHeading(90, 10, 100), 94.5F);
    EXPECT_FLOAT_EQ(table().magneticHeading(90, -1, 100), 89);
}

TEST_F(MagneticHeading, StaysFromZeroUpToBelow360) {
    setCell(whole, 0, 90, 2000);  // 11 east
    setCell(whole, 1, 90, -2000); // 11 west
    write(whole);
    EXPECT_FLOAT_EQ(table().magneticHeading(0, 0, 5), 354);
    EXPECT_FLOAT_EQ(table().magneticHeading(0, 1, 355), 6);
    EXPECT_FLOAT_EQ(table().magneticHeading(0, 1, 349), 0);
    const float hair = std::nextafter(11.0F, 0.0F);
    EXPECT_LT(table().magneticHeading(0, 0, hair), 360);
}

TEST_F(MagneticHeading, WithoutAFileTheTrueHeadingStays) {
    EXPECT_EQ(table().magneticHeading(47, -122, 123.5F), 123.5F);
    EXPECT_EQ(MagneticTable().magneticHeading(47, -122, 123.5F), 123.5F);
    EXPECT_EQ(MagneticTable("").magneticHeading(47, -122, 123.5F), 123.5F);
}

TEST_F(MagneticHeading, AShortFileHasNoValueForWhatItLacks) {
    setCell(whole, 0, 90, 1000);
    whole.resize(136 + 2 * 91 + 1); // up to column 0, row 90, and half a cell
    write(whole);
    EXPECT_FLOAT_EQ(table().magneticHeading(0, 0, 100), 94.5F);
    EXPECT_EQ(table().magneticHeading(1, 0, 100), 100);
    EXPECT_EQ(table().magneticHeading(0, 20, 100), 100);
    whole.resize(50);
    write(whole);
    EXPECT_EQ(table().magneticHeading(0, 0, 100), 100);
}

TEST_F(MagneticHeading, ALatitudeOffTheGlobeReadsNoOtherColumn) {
    setCell(whole, 28, 22, 1000); // where 5000 rows on would be
    write(whole);
    EXPECT_EQ(table().magneticHeading(5000, 0, 100), 100);
    EXPECT_FLOAT_EQ(table().magneticHeading(22 - 90, 28, 100), 94.5F);
}

TEST_F(MagneticHeading, PositionsOffTheGlobeStayTrue) {
    write(whole);
    const float big = std::numeric_limits<float>::max();
    EXPECT_EQ(table().magneticHeading(big, -big, 100), 100);
    EXPECT_EQ(table().magneticHeading(std::nanf(""), 0, 100), 100);
    EXPECT_EQ(table().magneticHeading(0, 999, 100), 100);
    EXPECT_EQ(table().magneticHeading(-999, -999, 100), 100);
}

} // namespace
} // namespace gatewise
