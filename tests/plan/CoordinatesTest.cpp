#include "plan/Coordinates.h"

#include <gtest/gtest.h>

namespace gatewise {
namespace {

const NumberLocale kPoint;
const NumberLocale kComma{",", ","};

TEST(CoordinateTexts, ForPlanFiles) {
    EXPECT_EQ(latitudeText(47.45F, kPoint), "N47* 27.00'");
    EXPECT_EQ(latitudeText(-33.9F, kPoint), "S33* 54.00'");
    EXPECT_EQ(latitudeText(5.25F, kPoint), "N5* 15.00'");
    EXPECT_EQ(latitudeText(0, kPoint), "N0* 00.00'");
    EXPECT_EQ(latitudeText(-0.5F, kPoint), "S0* 30.00'");
    EXPECT_EQ(longitudeText(0, kPoint), "E0* 00.00'");
    EXPECT_EQ(longitudeText(151.125F, kPoint), "E151* 07.50'");
    EXPECT_EQ(longitudeText(-122.3125F, kPoint), "W122* 18.75'");
}

TEST(CoordinateTexts, MinutesMayRoundToSixty) {
    EXPECT_EQ(latitudeText(47.99999F, kPoint), "N47* 60.00'");
    EXPECT_EQ(latitudeTicket(47.9999F, kPoint), "N47 60.0");
}

TEST(CoordinateTexts, AltitudeForPlanFiles) {
    EXPECT_EQ(altitudeText(433, kPoint), "+000433.00");
    EXPECT_EQ(altitudeText(37000, kPoint), "+037000.00");
    EXPECT_EQ(altitudeText(1, kPoint), "+000001.00");
    EXPECT_EQ(altitudeText(0, kPoint), "+000000.00");
    EXPECT_EQ(altitudeText(-1266, kPoint), "+000000.00");
}

TEST(CoordinateTexts, FilesCarryAPointWhateverTheLocaleWrites) {
    EXPECT_EQ(latitudeText(47.45F, kComma), "N47* 27.00'");
    EXPECT_EQ(longitudeText(-122.3125F, kComma), "W122* 18.75'");
    EXPECT_EQ(altitudeText(433, kComma), "+000433.00");
}

TEST(CoordinateTexts, OnlyTheWatchedSignIsSwappedOut) {
    // A locale whose money has a point and whose numbers have a comma keeps the comma.
    EXPECT_EQ(latitudeText(47.45F, NumberLocale{",", "."}), "N47* 27,00'");
    EXPECT_EQ(altitudeText(433, NumberLocale{",", "."}), "+000433,00");
}

TEST(CoordinateTexts, ForThePrintedPlan) {
    EXPECT_EQ(latitudeTicket(47.45F, kPoint), "N47 27.0");
    EXPECT_EQ(latitudeTicket(-5.5F, kPoint), "S05 30.0");
    EXPECT_EQ(longitudeTicket(-122.3125F, kPoint), "W122 18.8");
    EXPECT_EQ(longitudeTicket(8.125F, kPoint), "E008 07.5");
    EXPECT_EQ(latitudeTicket(47.45F, kComma), "N47 27,0");
}

TEST(CoordinateTexts, ZeroCountsAsSouthAndWestInPrint) {
    EXPECT_EQ(latitudeTicket(0, kPoint), "S00 00.0");
    EXPECT_EQ(longitudeTicket(0, kPoint), "W000 00.0");
}

} // namespace
} // namespace gatewise
