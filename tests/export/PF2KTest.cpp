#include "ExportFlights.h"

#include "export/ExportPF2K.h"

#include <gtest/gtest.h>

namespace gatewise::test {

namespace {

std::string value(const std::vector<ProfileValue>& keys, std::string_view key) {
    for (const auto& row : keys) {
        if (row.key == key) return row.value;
    }
    return "(not written)";
}

std::vector<ProfileValue> keysOf(const char* name, ProFlightOptions options) {
    const auto& c = exportCase(name);
    return proFlightKeys(c.plan, c.flight, exportTables(), options, {});
}

TEST(PF2K, AnAirlineWithoutCallsignGivesNoneAndCodeWithNumber) {
    const auto keys = keysOf("south", {"Ada", "Lovell", true, true, 0});
    EXPECT_EQ(value(keys, "Airline"), "None");
    EXPECT_EQ(value(keys, "Callsign"), "QZ7");
}

TEST(PF2K, TheAirlineWithoutCallsignIsWrittenWhateverIsTicked) {
    EXPECT_EQ(value(keysOf("south", {"", "", false, false, 0}), "Airline"), "None");
}

TEST(PF2K, BothBoxesUntickedLeaveTheOldValues) {
    const auto keys = keysOf("west", {"Ada", "Lovell", false, false, 0});
    EXPECT_EQ(value(keys, "Airline"), "(not written)");
    EXPECT_EQ(value(keys, "Callsign"), "(not written)");
}

TEST(PF2K, EachBoxSendsItsOwnKey) {
    const auto callsign = keysOf("west", {"", "", true, false, 0});
    EXPECT_EQ(value(callsign, "Airline"), "GATEWISE                ");
    EXPECT_EQ(value(callsign, "Callsign"), "(not written)");
    const auto number = keysOf("west", {"", "", false, true, 0});
    EXPECT_EQ(value(number, "Airline"), "(not written)");
    EXPECT_EQ(value(number, "Callsign"), "123");
}

TEST(PF2K, ACallsignOfNulCharactersIsBlank) {
    Tables tables = exportTables();
    tables.airlines[0].Callsign = std::string_view("\0\0\0\0", 4);
    const auto& c = exportCase("west");
    EXPECT_EQ(value(proFlightKeys(c.plan, c.flight, tables, {}, {}), "Airline"), "None");
    tables.airlines[0].Callsign = std::string_view("GATE\0WISE", 9);
    EXPECT_TRUE(value(proFlightKeys(c.plan, c.flight, tables, {"", "", true, true, 0}, {}), "Airline")
                    .starts_with("GATE WISE"));
}

TEST(PF2K, FiveMinutesPastMidnightLessFifteenIsTheEveningBefore) {
    EXPECT_EQ(proFlightTime(5, 15), "23:50");
    EXPECT_EQ(proFlightTime(900, 60), "08:00");
    EXPECT_EQ(proFlightTime(1435, 0), "14:35");
    EXPECT_EQ(proFlightTime(0, 60), "23:00");
}

TEST(PF2K, TheDescentRateIsPositive) {
    EXPECT_EQ(value(keysOf("west", {}), "DescentRate"), "1800.5");
}

TEST(PF2K, AircraftUnknownToProFlightWritesNoNames) {
    const auto keys = keysOf("south", {});
    EXPECT_EQ(value(keys, "Company"), "(not written)");
    EXPECT_EQ(value(keys, "Aircraft"), "(not written)");
}

TEST(PF2K, KeysStandInTheirOrder) {
    std::string order;
    for (const auto& row : keysOf("west", {"Ada", "Lovell", true, true, 15})) {
        EXPECT_EQ(row.section, "FlightInfo");
        order += row.key + " ";
    }
    EXPECT_EQ(order, "PilotName CruiseAltitude Time ClimbRate DescentRate CruiseSpeedTAS Company Aircraft "
                     "Airline Callsign ");
}

} // namespace

} // namespace gatewise::test
