#include "ExportFlights.h"

#include "export/ExportFMC.h"

#include <gtest/gtest.h>

namespace gatewise::test {

namespace {

const PlanAirport kSeattle = airportOf("KSEA", "Seattle", 47.449F, -122.3093F, 429);
const PlanAirport kLosAngeles = airportOf("KLAX", "Los Angeles", -33.5F, 0.25F, 126);

Plan there(std::int32_t altitude = 35000) {
    return planOf(kSeattle, kLosAngeles,
                  {{"V ", "OLM", "OLM", "OLYMPIA", 46.97158F, -122.9021F, "113.40", "", altitude, 180}}, 170);
}
Plan back() {
    return planOf(kLosAngeles, kSeattle, {}, 350);
}

std::string written(const Plan& plan, const std::string& old) {
    return fmcPlans(plan, old, {}).value_or("(refused)");
}

const std::string kThere = "KSEA*KLAX\t 3 \t***\t***\t***\t***\r\n"
                           "KSEA \t47.44900\t-122.30930\t429\r\n"
                           "OLM  \t46.97158\t-122.90210\t35000\r\n"
                           "KLAX \t-33.50000\t000.25000\t126\r\n";
const std::string kBack = "KLAX*KSEA\t 2 \t***\t***\t***\t***\r\n"
                          "KLAX \t-33.50000\t000.25000\t126\r\n"
                          "KSEA \t47.44900\t-122.30930\t429\r\n";
const std::string kOther = "EGLL*LFPG\t 2 \t***\t***\t***\t***\r\n"
                           "EGLL \t51.47750\t-000.46139\t80\r\n"
                           "LFPG \t49.01278\t002.55000\t392\r\n";

TEST(FMC, AnEmptyFileGetsThePlanAlone) {
    EXPECT_EQ(written(there(), ""), kThere);
}

TEST(FMC, ANewPairStandsFirst) {
    EXPECT_EQ(written(there(), kOther), kThere + kOther);
}

TEST(FMC, TheSameFlightTwiceLeavesOnePlanAtTheEnd) {
    const std::string once = written(there(), kOther);
    EXPECT_EQ(written(there(), once), kOther + kThere);
    EXPECT_EQ(written(there(), kOther + kThere), kOther + kThere);
}

TEST(FMC, APlanOfAnotherLengthIsReplacedWhole) {
    const std::string old = "KSEA*KLAX\t 1 \t***\t***\t***\t***\r\nKSEA \t47.44900\t-122.30930\t429\r\n";
    EXPECT_EQ(written(there(), old + kOther), kOther + kThere);
}

TEST(FMC, BothDirectionsAreTwoPlans) {
    EXPECT_EQ(written(back(), kThere), kBack + kThere);
}

TEST(FMC, TheKeyInANoteOfAnotherPlanIsAMatch) {
    const std::string noted =
        "EGLL*LFPG\t 2 \t***\tsee ksea*klax\t***\t***\r\nEGLL \t1\t2\t3\r\nLFPG \t4\t5\t6\r\n";
    EXPECT_EQ(written(there(), noted + kBack), kBack + kThere);
}

TEST(FMC, TheKeyIsFoundWithoutRegardToCase) {
    EXPECT_EQ(written(there(), "ksea*klax\t 1 \t\t\t\t\r\nKSEA \t1\t2\t3\r\n" + kOther), kOther + kThere);
}

TEST(FMC, TheFirstMatchCounts) {
    const std::string second = "KSEA*KLAX\t 0 \tb\t\t\t\r\n";
    EXPECT_EQ(written(there(), "KSEA*KLAX\t 0 \ta\t\t\t\r\n" + second), second + kThere);
}

TEST(FMC, AHeaderWithoutACountIsReplacedAlone) {
    EXPECT_EQ(written(there(), "KSEA*KLAX\r\n" + kOther), kOther + kThere);
}

TEST(FMC, ACountBeyondTheEndTakesTheRest) {
    EXPECT_EQ(written(there(), kOther + "KSEA*KLAX\t 1E300 \t\t\t\t\r\nKSEA \t1\t2\t3\r\n"), kOther + kThere);
}

TEST(FMC, ACountBeforeTheBeginningIsRefused) {
    EXPECT_EQ(written(there(), "KSEA*KLAX\t -9 \t\t\t\t\r\n"), "(refused)");
}

TEST(FMC, TwoThousandAndOneLinesAreReadOneMoreIsRefused) {
    std::string lines;
    for (int i = 0; i < 2001; ++i) lines += "x\r\n";
    EXPECT_EQ(written(there(), lines), kThere + lines);
    EXPECT_EQ(written(there(), lines + "x"), "(refused)");
}

TEST(FMC, LinesOfAnyEndAreReadAndWrittenWithCrLf) {
    EXPECT_EQ(written(there(), "one\ntwo\rthree\r\n\r\nfive"),
              kThere + "one\r\ntwo\r\nthree\r\n\r\nfive\r\n");
}

TEST(FMC, SouthAndWestHaveAMinusInFrontOfTheFormat) {
    const std::string text = written(there(), "");
    EXPECT_NE(text.find("\t-122.30930\t"), std::string::npos);
    EXPECT_NE(text.find("\t-33.50000\t"), std::string::npos);
}

TEST(FMC, ComputedPointsAreLinesToo) {
    const Plan plan =
        planOf(kSeattle, kLosAngeles,
               {{"TC", "*TOC*", "*TOC*", "Top of Climb", 46, -122, "000.00", "", 35000, 180}}, 170);
    EXPECT_NE(written(plan, "").find("*TOC*\t46.00000\t-122.00000\t35000\r\n"), std::string::npos);
}

} // namespace

} // namespace gatewise::test
