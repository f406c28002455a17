#include "ExportFlights.h"

#include "export/ExportACSGPS.h"

#include <gtest/gtest.h>

namespace gatewise::test {

namespace {

const PlanAirport kFrom = airportOf("KSEA", "Seattle", 40.64025F, -73.5F, 429);
const PlanAirport kTo = airportOf("EGLC", "London City", 0, 0, 19);

const std::string kFromBlock =
    "KSEA\r\nSeattle                             \r\nW 73* 30.00m\r\nN 40* 38.42m\r\n\r\n";
const std::string kToBlock =
    "EGLC\r\nLondon City                         \r\nE 0* 00.00m\r\nN 0* 00.00m\r\n\r\n";

std::string between(const std::vector<PointRow>& rows) {
    const std::string text = acsGpsPlan(planOf(kFrom, kTo, rows, 90), {});
    EXPECT_TRUE(text.starts_with(kFromBlock));
    EXPECT_TRUE(text.ends_with(kToBlock));
    return text.substr(kFromBlock.size(), text.size() - kFromBlock.size() - kToBlock.size());
}

PointRow point(const char* type, const char* frequency) {
    return {type, "KABC", "ABC", "ALPHA", -1.5F, 7.25F, frequency, "", 12000, 170};
}

const std::string kPosition = "E 7* 15.00m\r\nS 1* 30.00m\r\n\r\n";

TEST(ACSGPS, WithoutAPointBetweenThereAreTwoBlocks) {
    EXPECT_EQ(between({}), "");
}

TEST(ACSGPS, LatitudeZeroIsNorthOfNothing) {
    EXPECT_NE(acsGpsPlan(planOf(kFrom, kTo, {}, 90), {}).find("\r\nE 0* 00.00m\r\nN 0* 00.00m\r\n"),
              std::string::npos);
}

TEST(ACSGPS, TheTopOfDescentIsBodTwiceAtItsPlace) {
    EXPECT_EQ(between({point("TD", "000.00")}), "BOD\r\nBOD\r\n" + kPosition);
    EXPECT_EQ(between({point("TC", "000.00")}), "TOC\r\nTOC\r\n" + kPosition);
}

TEST(ACSGPS, NavaidsCarryTheirFrequencyFixesTheirNameAgain) {
    for (const char* type : {"N ", "HV", "V ", "HN"}) {
        EXPECT_EQ(between({point(type, "332.5")}), "ABC  \r\nALPHA 332.50\r\n" + kPosition) << type;
    }
    for (const char* type : {"I ", "HI"}) {
        EXPECT_EQ(between({point(type, "")}), "ABC  \r\nABC  \r\n" + kPosition) << type;
    }
}

TEST(ACSGPS, AFrequencyThatIsNoNumberStaysAsItIs) {
    EXPECT_EQ(between({point("V ", "")}), "ABC  \r\nALPHA       \r\n" + kPosition);
    EXPECT_EQ(between({point("V ", "1O9.5")}), "ABC  \r\nALPHA 1O9.5 \r\n" + kPosition);
}

TEST(ACSGPS, StepPointsAndUnknownTypesWriteNoBlock) {
    EXPECT_EQ(between({point("SU", ""), point("SD", ""), point("  ", "")}), "");
}

TEST(ACSGPS, SouthAndWestBelowOneDegreeKeepTheirLetters) {
    const std::string text =
        acsGpsPlan(planOf(airportOf("DGAA", "Accra", -0.5F, -0.25F, 0), kTo, {}, 90), {});
    EXPECT_NE(text.find("\r\nW 0* 15.00m\r\nS 0* 30.00m\r\n"), std::string::npos);
}

} // namespace

} // namespace gatewise::test
