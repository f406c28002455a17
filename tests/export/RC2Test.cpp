#include "ExportFlights.h"

#include "export/ExportRC2.h"

#include <gtest/gtest.h>

namespace gatewise::test {

namespace {

const PlanAirport kFrom = airportOf("KDEN", "Denver", 40, -104, 5431);
const PlanAirport kTo = airportOf("KJFK", "Kennedy", 41, -74, 13);

PointRow point(const char* type, float latitude, const char* frequency = "113.40") {
    return {type, "ABC", "ABC", "ABC", latitude, -104, frequency, "", 12000, 2};
}

std::string written(const Plan& plan, bool HaveAlternate = false, const MagneticTable& magnetic = {}) {
    return rc2Plan(plan, {"Stem", HaveAlternate}, {"date", "time"}, magnetic, {}).value_or("(refused)");
}

bool holds(const std::string& text, const std::string& line) {
    return text.find(line + "\r\n") != std::string::npos;
}

TEST(RC2, TwentyNineCheckpointsAreAcceptedThirtyAreNot) {
    EXPECT_TRUE(holds(written(exportCase("long29").plan), "    number_of_checkpoints = 29"));
    EXPECT_EQ(written(exportCase("long30").plan), "(refused)");
}

TEST(RC2, AFixNearerThanFiveMilesIsNeitherCountedNorWritten) {
    const std::string text =
        written(planOf(kFrom, kTo, {point("V ", 40 + 4.9F / 60), point("V ", 40 + 5.1F / 60)}, 90));
    EXPECT_TRUE(holds(text, "    number_of_checkpoints = 1"));
    EXPECT_TRUE(holds(text, "    checkpoint_1_latitude = 40.08500"));
    EXPECT_EQ(text.find("checkpoint_2"), std::string::npos);
}

TEST(RC2, ComputedPointsAreNeitherCountedNorWritten) {
    const std::string text =
        written(planOf(kFrom, kTo, {point("TC", 42), point("SU", 42), point("SD", 42), point("TD", 42)}, 90));
    EXPECT_TRUE(holds(text, "    number_of_checkpoints = 0"));
    EXPECT_EQ(text.find("checkpoint_1"), std::string::npos);
}

TEST(RC2, OnlyAnAlternateIsNamed) {
    Plan plan = planOf(kFrom, kTo, {}, 90);
    plan.alternateAirport = airportOf("KEWR", "Newark", 40.5F, -74.5F, 18);
    std::string text = written(plan);
    EXPECT_EQ(text.find("lternate"), std::string::npos);
    EXPECT_EQ(text.find("ALTERNATE"), std::string::npos);
    text = written(plan, true);
    EXPECT_TRUE(holds(text, "ALTERNATE_ID = \"KEWR\""));
    EXPECT_TRUE(holds(text, "    alternate_elevation = 18"));
    EXPECT_TRUE(holds(text, "    alternate_latitude = 40.50000"));
    EXPECT_TRUE(holds(text, "    alternate_longitude = -74.50000"));
}

TEST(RC2, BlocksStandInTheOrderCheckpointsDeparturesArrivals) {
    const std::string text = written(exportCase("west").plan);
    EXPECT_LT(text.find("checkpoint_7_heading"), text.find("d_runway_1_id"));
    EXPECT_LT(text.find("d_runway_2_altitude"), text.find("a_runway_1_id"));
    EXPECT_TRUE(text.ends_with("    a_runway_3_altitude = 429\r\nRETURN\r\n"));
}

TEST(RC2, ArrivalRunwaysCarryTheDeparturesElevation) {
    const std::string text = written(exportCase("west").plan);
    EXPECT_TRUE(holds(text, "    arrival_elevation = 126"));
    EXPECT_TRUE(holds(text, "    a_runway_1_altitude = 429"));
}

TEST(RC2, OnlyArrivalRunwaysWithAnIlsHaveAFrequency) {
    const std::string text = written(exportCase("west").plan);
    EXPECT_TRUE(holds(text, "    a_runway_1_freq = 108.50"));
    EXPECT_EQ(text.find("a_runway_2_freq"), std::string::npos);
    EXPECT_EQ(text.find("d_runway_1_freq"), std::string::npos);
}

TEST(RC2, RunwayNumbersCarryTheirSide) {
    Plan plan = planOf(kFrom, kTo, {}, 90);
    for (const char* id : {"09L", "27R", "18", "36C", "5"}) {
        RunwayRecord runway;
        runway.runwayId = id;
        plan.departureAirport.runways.push_back(runway);
    }
    const std::string text = written(plan);
    const char* numbers[] = {"91", "273", "180", "362", "50"};
    for (int i = 0; i < 5; ++i) {
        EXPECT_TRUE(holds(text, "    d_runway_" + std::to_string(i + 1) + "_id = " + numbers[i]))
            << numbers[i];
    }
}

TEST(RC2, FrequenciesArePacked) {
    Plan plan = planOf(kFrom, kTo, {}, 90);
    plan.departureAirport.radio.deliveryFreq = "118.70";
    const std::string text = written(plan);
    EXPECT_TRUE(holds(text, "    delivery_freq = 11870"));
    EXPECT_TRUE(holds(text, "    departure_ground_freq =      ")); // a missing one is packed blanks
}

TEST(RC2, ABlankFrequencyOfACheckpointIsZero) {
    const std::string text = written(planOf(kFrom, kTo, {point("I ", 42, ""), point("V ", 43, "110.5")}, 90));
    EXPECT_TRUE(holds(text, "    checkpoint_1_freq = 0"));
    EXPECT_TRUE(holds(text, "    checkpoint_2_freq = 110.5 "));
}

TEST(RC2, HeadingsAreMagneticAtThePoint) {
    const std::string text = written(planOf(kFrom, kTo, {point("V ", 42)}, 90), false, exportMagnetic());
    EXPECT_TRUE(holds(text, "    checkpoint_1_heading = 357"));
}

TEST(RC2, CoordinatesBelowOneDegreeHaveNoIntegerDigit) {
    const std::string text = written(exportCase("direct").plan);
    EXPECT_TRUE(holds(text, "    arrival_latitude = .50000"));
    EXPECT_TRUE(holds(text, "    arrival_longitude = -.16670"));
}

TEST(RC2, TheHoldIsTheLastPointBeforeTheDestination) {
    EXPECT_TRUE(holds(written(exportCase("west").plan), "HOLD_ID = \"FIM\""));
    EXPECT_TRUE(holds(written(planOf(kFrom, kTo, {}, 90)), "HOLD_ID = \"KDEN\""));
    EXPECT_TRUE(holds(written(Plan()), "HOLD_ID = \"\""));
}

TEST(RC2, TheClockHasTwelveHours) {
    const auto at = [](int hour, int minute) { return twelveHourTime({.hour = hour, .minute = minute}); };
    EXPECT_EQ(at(0, 5), "12:05 AM");
    EXPECT_EQ(at(8, 30), "08:30 AM");
    EXPECT_EQ(at(12, 0), "12:00 PM");
    EXPECT_EQ(at(23, 59), "11:59 PM");
}

} // namespace

} // namespace gatewise::test
