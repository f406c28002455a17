#include "simulator/SituationTexts.h"

#include <gtest/gtest.h>
#include <limits>

namespace gatewise {
namespace {

const NumberLocale kPoint;
const NumberLocale kComma{",", ","};

TEST(SituationTexts, PositionsInDegreesMinutesAndSeconds) {
    EXPECT_EQ(FormatLatitude(33.625F, kPoint), "N033* 37' 30.0000\"");
    EXPECT_EQ(FormatLatitude(-33.640625F, kPoint), "S033* 38' 26.2500\"");
    EXPECT_EQ(FormatLongitude(-84.4375F, kPoint), "W084* 26' 15.0000\"");
    EXPECT_EQ(FormatLongitude(8.125F, kPoint), "E008* 07' 30.0000\"");
}

TEST(SituationTexts, ZeroCountsAsSouthAndWest) {
    EXPECT_EQ(FormatLatitude(0, kPoint), "S000* 00' 00.0000\"");
    EXPECT_EQ(FormatLongitude(0, kPoint), "W000* 00' 00.0000\"");
    EXPECT_EQ(FormatLatitude(-0.0F, kPoint), "S000* 00' 00.0000\"");
}

TEST(SituationTexts, WholePartsAreCutAndNeverRounded) {
    EXPECT_EQ(FormatLatitude(47.9875F, kPoint).substr(0, 10), "N047* 59' ");
    EXPECT_EQ(FormatLongitude(179.96875F, kPoint), "E179* 58' 07.5000\"");
}

TEST(SituationTexts, SecondsComeOutOf32BitArithmetic) {
    // 0.1874 * 60 is kept as 11.243999481 and its rest * 60 as 14.639969; wider arithmetic has 14.639940.
    EXPECT_EQ(FormatLatitude(1.1874F, kPoint), "N001* 11' 14.6400\"");
    // Likewise 21.000366 in place of 21.000309.
    EXPECT_EQ(FormatLatitude(3.7225F, kPoint), "N003* 43' 21.0004\"");
    EXPECT_EQ(FormatLatitude(40.64F, kPoint), "N040* 38' 23.9978\"");
}

TEST(SituationTexts, JustBelowAWholeDegree) {
    EXPECT_EQ(FormatLatitude(0.99999994F, kPoint), "N000* 59' 59.9998\"");
    EXPECT_EQ(FormatLatitude(1.9999999F, kPoint), "N001* 59' 59.9995\"");
}

TEST(SituationTexts, AnotherDecimalSignLosesLeadingZeros) {
    EXPECT_EQ(FormatLatitude(33.625F, kComma), "N33* 37' 30\"");
    EXPECT_EQ(FormatLongitude(8.125F, kComma), "E8* 7' 30\"");
    EXPECT_EQ(FormatLongitude(-0.0625F, kComma), "W0* 3' 45\"");
    EXPECT_EQ(FormatLatitude(-33.640625F, kComma), "S33* 38' 26.25\"");
    EXPECT_EQ(FormatLatitude(0, kComma), "S0* 0' 0\"");
}

TEST(SituationTexts, OnlyTheWatchedSignDecides) {
    // Money with a point, numbers with a comma: the text is used as it stands.
    EXPECT_EQ(FormatLatitude(33.640625F, NumberLocale{",", "."}), "N033* 38' 26,2500\"");
    // The other way round the numbers have a point already and only lose their zeros.
    EXPECT_EQ(FormatLatitude(33.640625F, NumberLocale{".", ","}), "N33* 38' 26.25\"");
}

TEST(SituationTexts, AltitudesHaveTwoSignsBelowTheSea) {
    EXPECT_EQ(FormatAltitude(123, kPoint), "+000123.00");
    EXPECT_EQ(FormatAltitude(0, kPoint), "+000000.00");
    EXPECT_EQ(FormatAltitude(-12, kPoint), "+-000012.00");
    EXPECT_EQ(FormatAltitude(41000, kComma), "+041000.00");
}

TEST(SituationTexts, Headings) {
    EXPECT_EQ(FormatHeading(12.5F, kPoint), "012.500000");
    EXPECT_EQ(FormatHeading(0, kPoint), "000.000000");
    EXPECT_EQ(FormatHeading(359.9F, kComma), "359.900000");
}

TEST(SituationTexts, NoFiniteNumberHasNoDigits) {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    const float infinite = std::numeric_limits<float>::infinity();
    EXPECT_EQ(FormatLatitude(nan, kPoint), "S* ' \"");
    EXPECT_EQ(FormatLongitude(infinite, kComma), "E* ' \"");
    EXPECT_EQ(FormatHeading(nan, kPoint), "");
    EXPECT_EQ(FormatAltitude(infinite, kPoint), "+");
}

} // namespace
} // namespace gatewise
