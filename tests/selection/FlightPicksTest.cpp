#include "selection/FlightPicks.h"

#include "support/Schedule.h"

#include <gtest/gtest.h>

namespace gatewise {
namespace {

std::vector<FlightRecord> flightsTo(std::string_view destination, std::size_t count) {
    std::vector<FlightRecord> flights(count, test::flight("AA", 12, 735, 905));
    for (auto& flight : flights) flight.DestinationIata = destination;
    return flights;
}

TEST(FlightPicks, HoldThePositionsOfTheFlightsToTheDestinationOnTheDay) {
    auto flights = flightsTo("JFK", 4);
    flights[1].DestinationIata = "LGA";
    flights[2].DaysMask = 2;
    const auto any = pickFlights(flights, "JFK", 0);
    EXPECT_EQ(any.FlightPickCount, 2);
    EXPECT_EQ(any.FlightPicks[0], 0);
    EXPECT_EQ(any.FlightPicks[1], 2);
    EXPECT_EQ(any.FlightPicks[2], 3);
    EXPECT_EQ(any.FlightPicks[3], 999999);
    EXPECT_EQ(any.FlightPicks[999], 999999);
    const auto monday = pickFlights(flights, "JFK", 1);
    EXPECT_EQ(monday.FlightPickCount, 1);
    EXPECT_EQ(monday.FlightPicks[1], 3);
}

TEST(FlightLine, APositionJustBehindTheListHasNoTexts) {
    const std::vector<FlightRecord> flights = {test::flight("AA", 12, 735, 1000)};
    const FlightLine behind = flightLine(Tables(), flights, 1);
    EXPECT_EQ(behind.key, "Flight1");
    EXPECT_EQ(behind.text + behind.equipment + behind.departs + behind.arrives, "");
    EXPECT_EQ(flightLine(Tables(), flights, 0).text, " AA 12");
}

TEST(FlightPicks, TheDestinationIsComparedWithAllThreeCharacters) {
    const auto flights = flightsTo("AB", 1);
    EXPECT_EQ(pickFlights(flights, "AB ", 0).FlightPickCount, 0);
    EXPECT_EQ(pickFlights(flights, "AB", 0).FlightPickCount, -1);
    EXPECT_EQ(pickFlights(flights, "ab ", 0).FlightPickCount, -1);
}

TEST(FlightPicks, AThousandFitAndOneMoreIsAnError) {
    const auto full = pickFlights(flightsTo("JFK", 1000), "JFK", 0);
    EXPECT_FALSE(full.overflow);
    EXPECT_EQ(full.FlightPickCount, 999);
    const auto over = pickFlights(flightsTo("JFK", 1001), "JFK", 0);
    EXPECT_TRUE(over.overflow);
    EXPECT_EQ(over.FlightPicks[999], 999);
}

TEST(FlightLine, ShowsTheFlightAndKeepsItsPositionInTheKey) {
    Tables tables;
    tables.aircraft = {test::aircraft("733", "Boeing 737-300")};
    auto flights = flightsTo("JFK", 12);
    flights[11].AircraftCode = "733";
    const auto line = flightLine(tables, flights, 11);
    EXPECT_EQ(line.text, " AA 12");
    EXPECT_EQ(line.key, "Flight11");
    EXPECT_EQ(line.equipment.substr(0, 15), "Boeing 737-300 ");
    EXPECT_EQ(line.departs, "0735");
    EXPECT_EQ(line.arrives, "0905");
    EXPECT_EQ(positionOfKey(line.key), 11);
    EXPECT_FALSE(positionOfKey(""));
    EXPECT_FALSE(positionOfKey("Flightx"));
    EXPECT_EQ(flightLine(tables, flights, 12).text, "");
}

class FlightInfo : public ::testing::Test {
protected:
    FlightInfo() {
        tables.airports = {test::airport("ATL", "KATL", "Hartsfield", "Atlanta"),
                           test::airport("AB", "KAB", "Short", "Shorttown"), AirportRecord()};
        tables.airlines = {test::airline("AA", "Able Air")};
        tables.aircraft = {test::aircraft("733", "Boeing 737-300"), test::aircraft("DH", "Dash")};
        flight = test::flight("AA", 12, 5, 905);
        flight.OriginIata = "ATL";
        flight.DestinationIata = "ATL";
        flight.AircraftCode = "733";
        flight.ClassCode = "C";
        flight.Miles = 1250;
    }
    Tables tables;
    FlightRecord flight;
};

TEST_F(FlightInfo, AllTexts) {
    flight.MealMask = 3;
    const auto info = flightInfoTexts(tables, flight);
    EXPECT_EQ(info.origin, " Atlanta");
    EXPECT_EQ(info.arrival, " Atlanta");
    EXPECT_EQ(info.flight_info, "Able Air 12, Boeing 737-300");
    EXPECT_EQ(info.dept_time, "0005");
    EXPECT_EQ(info.arr_time, "0905");
    EXPECT_EQ(info.miles, "1250");
    EXPECT_EQ(info.Class, "First, Economy");
    EXPECT_EQ(info.meal, "B L ");
}

TEST_F(FlightInfo, AllDaysShowTheirMark) {
    for (const auto& day : flightInfoTexts(tables, flight).days) EXPECT_EQ(day, "Y");
    flight.DaysMask = 1 + 64;
    const auto info = flightInfoTexts(tables, flight);
    EXPECT_EQ(info.days[0], "Y");
    EXPECT_EQ(info.days[1], " ");
    EXPECT_EQ(info.days[6], "Y");
}

TEST_F(FlightInfo, NoMealsShowNone) {
    EXPECT_EQ(flightInfoTexts(tables, flight).meal, "None");
}

TEST_F(FlightInfo, APaddedCodeOfTwoLettersFindsNothing) {
    flight.OriginIata = "AB";
    flight.AircraftCode = "DH";
    const auto info = flightInfoTexts(tables, flight);
    EXPECT_EQ(info.origin, " ");
    EXPECT_EQ(info.flight_info, "Able Air 12, ");
}

TEST_F(FlightInfo, AnUnknownClassLeavesTheTextEmpty) {
    flight.ClassCode = "Z";
    EXPECT_EQ(flightInfoTexts(tables, flight).Class, "");
}

} // namespace
} // namespace gatewise
