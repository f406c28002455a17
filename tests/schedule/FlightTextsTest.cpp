#include "schedule/FlightTexts.h"

#include "support/Schedule.h"

#include <gtest/gtest.h>

namespace gatewise {
namespace {

TEST(AirportTexts, TrimAllButTheCodesOfAHit) {
    const auto airport = test::airport("AB", "KAB", "Small Field", "Smalltown");
    EXPECT_EQ(airportListText(airport), "Smalltown - Small Field (AB)");
    EXPECT_EQ(airportText(airport), " Smalltown - Small Field (AB)");
    EXPECT_EQ(homeText(airport), "KAB - Smalltown - Small Field (AB)");
    EXPECT_EQ(airportHitText(airport), "KAB  - Small Field (AB )");
    EXPECT_EQ(airportText(AirportRecord()), "  -  ()");
}

TEST(FlightStem, NamesAFlightInEveryFile) {
    Tables tables;
    tables.airlines = {test::airline("AB", " Able Air ")};
    auto flight = test::flight("AB", 12, 0, 0);
    flight.OriginIata = "LAX";
    flight.DestinationIata = "JFK";
    EXPECT_EQ(flightStem(tables, flight), "Able Air Flight 12 LAX to JFK");
    flight.AirlineCode = "??";
    flight.DestinationIata = "X";
    EXPECT_EQ(flightStem(tables, flight), " Flight 12 LAX to X  ");
}

TEST(FourDigits, KeepsLeadingZeros) {
    EXPECT_EQ(fourDigits(735), "0735");
    EXPECT_EQ(fourDigits(0), "0000");
    EXPECT_EQ(fourDigits(2359), "2359");
    EXPECT_EQ(fourDigits(32767), "32767");
    EXPECT_EQ(fourDigits(-5), "-0005");
}

TEST(PassTime, FollowsTheTwelveHourClockOfThePass) {
    EXPECT_EQ(passTime(5), "1205A");
    EXPECT_EQ(passTime(0), "1200A");
    EXPECT_EQ(passTime(99), "1299A");
    EXPECT_EQ(passTime(100), "100A");
    EXPECT_EQ(passTime(1199), "1199A");
    EXPECT_EQ(passTime(1200), "1200P");
    EXPECT_EQ(passTime(1215), "1215P");
    EXPECT_EQ(passTime(1345), "145P");
    EXPECT_EQ(passTime(1301), "101P");
    EXPECT_EQ(passTime(2359), "1159P");
}

TEST(PassTime, ExactlyThirteenHundredKeepsThePreviousText) {
    EXPECT_FALSE(passTime(1300));
    EXPECT_FALSE(passTime(-1));
}

TEST(PassDate, IsTheDayAndTheMonthInUpperCase) {
    DateTime today;
    today.day = 5;
    today.month = 1;
    EXPECT_EQ(passDate(today), "05JAN");
    today.day = 31;
    today.month = 12;
    EXPECT_EQ(passDate(today), "31DEC");
}

TEST(PassDate, EveryMonthHasItsName) {
    std::string months;
    for (int month = 1; month <= 12; ++month) months += passDate({2002, month, 7}).substr(2);
    EXPECT_EQ(months, "JANFEBMARAPRMAYJUNJULAUGSEPOCTNOVDEC");
}

TEST(Seat, ComesFromTheSecond) {
    EXPECT_EQ(seatText(0), "1B");
    EXPECT_EQ(seatText(30), "8B");
    EXPECT_EQ(seatText(31), "8A");
    EXPECT_EQ(seatText(59), "15A");
}

TEST(Classes, TextsOfAllCodes) {
    EXPECT_EQ(classText("A"), "First, Business, Economy");
    EXPECT_EQ(classText("B"), "First, Business");
    EXPECT_EQ(classText("C"), "First, Economy");
    EXPECT_EQ(classText("D"), "First");
    EXPECT_EQ(classText("E"), "Business");
    EXPECT_EQ(classText("F"), "Economy");
    EXPECT_EQ(classText("G"), "Business, Economy");
    for (const auto* code : {"A", "B", "C", "D"}) EXPECT_EQ(passClass(code), "FIRST");
    EXPECT_EQ(passClass("E"), "BUSINESS");
    EXPECT_EQ(passClass("F"), "ECONOMY");
    EXPECT_EQ(passClass("G"), "BUSINESS");
}

TEST(Classes, AnyOtherCodeShowsNoClass) {
    for (const auto* code : {"", " ", "a", "H", "AB"}) {
        EXPECT_EQ(classText(code), "") << code;
        EXPECT_FALSE(passClass(code)) << code;
    }
}

} // namespace
} // namespace gatewise
