#include "platform/Numbers.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace gatewise {
namespace {

TEST(FormatNumber, ZerosAreAlwaysDigits) {
    EXPECT_EQ(formatNumber("000.00", 1.5), "001.50");
    EXPECT_EQ(formatNumber("000.00", 1234.567), "1234.57");
    EXPECT_EQ(formatNumber("00", 7), "07");
    EXPECT_EQ(formatNumber("0", 0), "0");
    EXPECT_EQ(formatNumber("#####0.0", 3.14), "3.1");
    EXPECT_EQ(formatNumber("#####0.0", 0.04), "0.0");
}

TEST(FormatNumber, ASignOfNumberIsADigitIfNeeded) {
    EXPECT_EQ(formatNumber("###.00000", 0.5), ".50000");
    EXPECT_EQ(formatNumber("###.00000", 12.5), "12.50000");
    EXPECT_EQ(formatNumber("###.00000", 0), ".00000");
    EXPECT_EQ(formatNumber("####", 0), "");
    EXPECT_EQ(formatNumber("####", 145), "145");
    EXPECT_EQ(formatNumber("0.##", 1.5), "1.5");
    EXPECT_EQ(formatNumber("0.##", 1.255), "1.26");
    EXPECT_EQ(formatNumber("0.0#", 1), "1.0");
}

TEST(FormatNumber, NegativeNumbersHaveTheirMinusInFront) {
    EXPECT_EQ(formatNumber("00", -20), "-20");
    EXPECT_EQ(formatNumber("00", -5), "-05");
    EXPECT_EQ(formatNumber("000.00", -1.5), "-001.50");
    EXPECT_EQ(formatNumber("###.00000", -0.25), "-.25000");
}

TEST(FormatNumber, RoundsHalfAwayFromZeroOnTheDecimalText) {
    EXPECT_EQ(formatNumber("0", 0.5), "1");
    EXPECT_EQ(formatNumber("0", 1.5), "2");
    EXPECT_EQ(formatNumber("0", 2.5), "3");
    EXPECT_EQ(formatNumber("0", -2.5), "-3");
    EXPECT_EQ(formatNumber("0.00", 2.675), "2.68"); // a little below in binary
    EXPECT_EQ(formatNumber("0.00", 1.005), "1.01");
    EXPECT_EQ(formatNumber("0.0", 0.25), "0.3");
    EXPECT_EQ(formatNumber("0", 99.5), "100");
    EXPECT_EQ(formatNumber("0.0", 9.95), "10.0");
    EXPECT_EQ(formatNumber("0", 0.4999), "0");
}

TEST(FormatNumber, ADoubleHasFifteenSignificantDigits) {
    EXPECT_EQ(formatNumber("0.00000000000000000", 1.0 / 3), "0.33333333333333300");
    EXPECT_EQ(formatNumber("0", 1234567890123456789.0), "1234567890123460000");
    EXPECT_EQ(formatNumber("0.0", 0.1 + 0.2), "0.3");
    // Exactly 0.49999999999999994: the fifteenth digit rounds it up to 0.5 first.
    EXPECT_EQ(formatNumber("0", std::nextafter(0.5, 0.0)), "1");
}

TEST(FormatSingle, ASingleHasSevenSignificantDigits) {
    EXPECT_EQ(formatSingle("0.00000000", 1.0F / 3), "0.33333330");
    EXPECT_EQ(formatSingle("0.00", 0.145F), "0.15");
    EXPECT_EQ(formatSingle("###.00000", -122.31F), "-122.31000");
    EXPECT_EQ(formatSingle("0", 123456789.0F), "123456800");
}

TEST(FormatNumber, TheSignOfTheLocaleStandsForThePoint) {
    EXPECT_EQ(formatNumber("000.00", 12.5, ","), "012,50");
    EXPECT_EQ(formatNumber("00", 12.5, ","), "13");
}

TEST(FormatNumber, WhatIsNoNumberHasNoText) {
    EXPECT_EQ(formatNumber("0.0", std::numeric_limits<double>::infinity()), "");
    EXPECT_EQ(formatNumber("0.0", std::numeric_limits<double>::quiet_NaN()), "");
    EXPECT_EQ(formatSingle("0.0", std::numeric_limits<float>::quiet_NaN()), "");
    EXPECT_EQ(plainDouble(std::numeric_limits<double>::infinity()), "");
}

TEST(FormatInteger, KeepsEveryDigit) {
    EXPECT_EQ(formatInteger("0000", 735), "0735");
    EXPECT_EQ(formatInteger("0000", 12345), "12345");
    EXPECT_EQ(formatInteger("00", -20), "-20");
    EXPECT_EQ(formatInteger("####", 0), "");
    EXPECT_EQ(formatInteger("0", 1000), "1000");
    EXPECT_EQ(formatInteger("0", 9007199254740993), "9007199254740993");
    EXPECT_EQ(formatInteger("0", std::numeric_limits<long long>::min()), "-9223372036854775808");
}

TEST(PlainDouble, IsTheShortestTextOfFifteenDigits) {
    EXPECT_EQ(plainDouble(0), "0");
    EXPECT_EQ(plainDouble(-0.0), "0");
    EXPECT_EQ(plainDouble(0.5), "0.5");
    EXPECT_EQ(plainDouble(-12), "-12");
    EXPECT_EQ(plainDouble(0.1 + 0.2), "0.3");
    EXPECT_EQ(plainDouble(1.0 / 3), "0.333333333333333");
    EXPECT_EQ(plainDouble(1200), "1200");
    EXPECT_EQ(plainDouble(0.0025), "0.0025");
    EXPECT_EQ(plainDouble(2.5, ","), "2,5");
}

TEST(PlainDouble, VeryLargeAndVerySmallNumbersHaveAnExponent) {
    EXPECT_EQ(plainDouble(999999999999999), "999999999999999");
    EXPECT_EQ(plainDouble(1e15), "1E+15");
    EXPECT_EQ(plainDouble(-1.25e20), "-1.25E+20");
    EXPECT_EQ(plainDouble(1e-5), "0.00001");
    EXPECT_EQ(plainDouble(1.5e-6), "1.5E-06");
    EXPECT_EQ(plainDouble(1e100), "1E+100");
}

TEST(PlainSingle, IsTheShortestTextOfSevenDigits) {
    EXPECT_EQ(plainSingle(0.1F), "0.1");
    EXPECT_EQ(plainSingle(1.0F / 3), "0.3333333");
    EXPECT_EQ(plainSingle(829.4567F), "829.4567");
    EXPECT_EQ(plainSingle(9999999.0F), "9999999");
    EXPECT_EQ(plainSingle(1e7F), "1E+07");
    EXPECT_EQ(plainSingle(1.5e-6F), "1.5E-06");
}

TEST(NumberLocale, ACommaIsWrittenAsAPointInAFile) {
    NumberLocale locale;
    locale.LocaleDecimal = ",";
    locale.DecimalSign = ",";
    EXPECT_EQ(locale.plainDouble(12.5), "12,5");
    EXPECT_EQ(locale.filed(locale.plainDouble(12.5)), "12.5");
    EXPECT_EQ(locale.filed(locale.formatSingle("000.00", 1.5F)), "001.50");
    EXPECT_EQ(locale.filed(locale.format("0.0", 1.5)), "1.5");
}

TEST(NumberLocale, OnlyTheMonetarySignIsSwappedOut) {
    NumberLocale locale;
    locale.LocaleDecimal = ",";
    locale.DecimalSign = ".";
    EXPECT_EQ(locale.filed(locale.plainDouble(12.5)), "12,5");
    EXPECT_EQ(NumberLocale().filed("12.5"), "12.5");
}

TEST(RoundToEven, TiesGoToTheEvenNumber) {
    EXPECT_EQ(roundToEven(0.5), 0);
    EXPECT_EQ(roundToEven(1.5), 2);
    EXPECT_EQ(roundToEven(2.5), 2);
    EXPECT_EQ(roundToEven(-0.5), 0);
    EXPECT_EQ(roundToEven(-1.5), -2);
    EXPECT_EQ(roundToEven(-2.5), -2);
    EXPECT_EQ(roundToEven(2.4999), 2);
    EXPECT_EQ(roundToEven(2.5001), 3);
    EXPECT_EQ(roundToEven(7), 7);
}

} // namespace
} // namespace gatewise
