#include "plan/PrintPlan.h"

#include "PlanWorld.h"

#include <gtest/gtest.h>

namespace gatewise {
namespace {

const NumberLocale kPoint;
const NumberLocale kComma{",", ","};

/// A plan by hand: departure, so many fixes, destination; a fix every 100 miles and 15 minutes.
Plan handMade(int fixes) {
    Plan plan;
    plan.departureAirport.Icao = std::string_view("KSEA");
    plan.departureAirport.Latitude = 47.45F;
    plan.departureAirport.Longitude = -122.3125F;
    plan.destinationAirport.Icao = std::string_view("KLAX");
    plan.planLast = static_cast<std::int16_t>(fixes + 1);
    plan.totalDistance = static_cast<float>(100 * (fixes + 1));
    plan.peakAltitude = 37000;
    plan.totalTime = std::string_view("02:05");
    plan.routeString = "KSEA..OLM.J1.KLAX  ";
    plan.speedSchedule = {240, 378, 399, 420, 398, 376, 239};
    for (int i = 0; i <= plan.planLast; ++i) {
        PlanPoint& point = plan.at(i);
        point.pointName = "P" + std::to_string(i);
        point.pointAirway = std::string_view("J1");
        point.pointFrequency = std::string_view("113.3");
        point.pointLatitude = 45.5F;
        point.pointLongitude = -120.25F;
        point.pointAltitude = 37000;
        point.pointHeading = 166.4F;
        point.pointMinutes = 15 * i;
        point.pointTotalDistance = static_cast<float>(100 * i);
    }
    return plan;
}

FlightRecord flight(std::int16_t departure = 735) {
    FlightRecord record;
    record.AirlineCode = std::string_view("AS");
    record.FlightNumber = 12;
    record.DepartureTime = departure;
    return record;
}

std::string print(const Plan& plan, const FlightRecord& record = flight(),
                  const NumberLocale& locale = kPoint) {
    DateTime date;
    date.day = 5;
    date.month = 11;
    return printFlightPlan(plan, record, date, "11/5/2002", MagneticTable(), locale);
}

std::vector<std::string> lines(const std::string& text) {
    std::vector<std::string> out(1);
    for (const char c : text) {
        if (c == '\n')
            out.emplace_back();
        else
            out.back() += c;
    }
    return out;
}

int count(const std::string& text, const std::string& part) {
    int found = 0;
    for (auto at = text.find(part); at != std::string::npos; at = text.find(part, at + 1)) ++found;
    return found;
}

TEST(PrintedPlan, TheWholeListingOfOneFix) {
    EXPECT_EQ(print(handMade(1)), "05NOV\n"
                                  "PART 01 OF AS 12/KSEA DEPARTURE TIME - 0735\n"
                                  "\n"
                                  "ROUTE KSEA to KLAX\tFL 370\tETE 02:05\n"
                                  "KSEA..OLM.J1.KLAX\n"
                                  "\n"
                                  "TO      FREQ    LAT...    LONG...     IAS   DIST  ACTM  TIME \n"
                                  "ROUTE           FL    T/H   M/H       TAS   DRMG  TRMG  ETA  \n"
                                  "\n"
                                  "KSEA            N47 27.0  W122 18.8\n"
                                  "                                            0200  02:05\n"
                                  "\n"
                                  "P1      113.30  N45 30.0  W120 15.0   420   0100  00:15 00:15\n"
                                  "J1              370   166   166       734   0100  01:50\n"
                                  "\n"
                                  "P2      113.30  N45 30.0  W120 15.0   420   0100  00:30 00:15\n"
                                  "J1              370   166   166       734   0000  01:35\n"
                                  "\n"
                                  "PLAN VALID FOR DEPARTURE UNTIL 08:05 LCL 11/5/2002\n"
                                  "05NOV");
}

TEST(PrintedPlan, EveryMonthHasItsName) {
    std::string months;
    for (int month = 1; month <= 12; ++month)
        months += printFlightPlan(handMade(1), flight(), {2002, month, 7}, "", MagneticTable(), kPoint)
                      .substr(0, 5) +
                  " ";
    EXPECT_EQ(months, "07JAN 07FEB 07MAR 07APR 07MAY 07JUN 07JUL 07AUG 07SEP 07OCT 07NOV 07DEC ");
}

TEST(PrintedPlan, ThreeFixesAndTheDestinationMakeTwoParts) {
    const std::string text = print(handMade(3));
    EXPECT_EQ(count(text, "PARTS FOLLOW\n"
                          "- - - - - - - - - - - - - - - - - - - - - - - - - - -\n"
                          "05NOV\n"
                          "PART 02 OF AS 12/KSEA\n"
                          "\n"
                          "P4  "),
              1);
    EXPECT_EQ(count(text, "PART "), 2);
}

TEST(PrintedPlan, LaterPartsCloseAfterFourPoints) {
    const std::string text = print(handMade(11)); // 12 points: 3, 4, 4, 1
    EXPECT_EQ(count(text, "PARTS FOLLOW"), 3);
    EXPECT_EQ(count(text, "PART 02 OF AS 12/KSEA\n\nP4 "), 1);
    EXPECT_EQ(count(text, "PART 03 OF AS 12/KSEA\n\nP8 "), 1);
    EXPECT_EQ(count(text, "PART 04 OF AS 12/KSEA\n\nP12 "), 1);
    EXPECT_EQ(count(text, "TO      FREQ"), 1); // the headers are not repeated
}

TEST(PrintedPlan, APlanEndingAtACloseGetsAPartWithTheValidityAlone) {
    EXPECT_EQ(count(print(handMade(2)), "PART 02 OF AS 12/KSEA\n\nPLAN VALID"), 1);
    EXPECT_EQ(count(print(handMade(6)), "PART 03 OF AS 12/KSEA\n\nPLAN VALID"), 1);
}

TEST(PrintedPlan, FrequenciesOfZeroAndBlankPrintBlanks) {
    Plan plan = handMade(3);
    plan.at(1).pointFrequency = std::string_view("000.00");
    plan.at(2).pointFrequency = std::string_view("");
    plan.at(3).pointFrequency = std::string_view("362");
    for (const NumberLocale& locale : {kPoint, kComma}) {
        const auto out = lines(print(plan, flight(), locale));
        EXPECT_EQ(out[12].substr(0, 24), "P1              N45 30.0");
        EXPECT_EQ(out[15].substr(0, 24), "P2              N45 30.0");
        EXPECT_EQ(out[18].substr(0, 24), "P3      362.00  N45 30.0");
    }
}

TEST(PrintedPlan, ValidForHalfAnHour) {
    const auto until = [](std::int16_t departure) {
        const std::string text = print(handMade(1), flight(departure));
        return text.substr(text.find("UNTIL ") + 6, 5);
    };
    EXPECT_EQ(until(2345), "00:15");
    EXPECT_EQ(until(745), "08:15");
    EXPECT_EQ(until(0), "00:30");
    EXPECT_EQ(until(729), "07:59");
    EXPECT_EQ(until(730), "08:00");
    EXPECT_EQ(until(2330), "00:00");
}

TEST(PrintedPlan, SpeedsByAltitudeAndWayOfFlight) {
    Plan plan = handMade(7);
    const std::array<std::int32_t, 9> feet = {0, 10000, 10001, 25000, 25001, 25001, 25000, 10000, 9999};
    for (int i = 0; i <= 8; ++i) plan.at(i).pointAltitude = feet[static_cast<std::size_t>(i)];
    std::string speeds;
    for (const std::string& line : lines(print(plan))) {
        if (line.size() > 41 && line[0] == 'P' && line[1] >= '1' && line[1] <= '9')
            speeds += line.substr(38, 3) + " ";
    }
    EXPECT_EQ(speeds, "240 378 378 399 420 376 239 239 ");
    plan.at(4).pointAltitude = 30000;
    EXPECT_EQ(count(print(plan), "   398   "), 1); // down to 25,001
}

TEST(PrintedPlan, TrueSpeedIsThatOfTheAltitude) {
    Plan plan = handMade(1);
    plan.at(1).pointAltitude = 10000;
    // down to 10,000: 239 * 1.1328 = 270.7
    EXPECT_EQ(lines(print(plan))[13], "J1              100   166   166       271   0100  01:50");
}

TEST(PrintedPlan, ComputedPointsPrintLikeFixes) {
    Plan plan = handMade(4);
    const std::array<const char*, 4> names = {"STEPC", "*TOC*", "*TOD*", "STEPD"};
    for (int i = 1; i <= 4; ++i)
        plan.at(i).pointName = std::string_view(names[static_cast<std::size_t>(i - 1)]);
    const std::string text = print(plan);
    for (const char* name : names) EXPECT_EQ(count(text, std::string(name) + "   113.30"), 1) << name;
}

TEST(PrintedPlan, TheFirstLegCountsFromZero) {
    Plan plan = handMade(1);
    plan.at(0).pointTotalDistance = 40; // a top of climb in the departure's place
    EXPECT_EQ(lines(print(plan))[12].substr(44, 4), "0100");
}

TEST(PrintedPlan, EveryDecimalSignBecomesAPoint) {
    const std::string text = print(handMade(1), flight(), kComma);
    EXPECT_EQ(text, print(handMade(1)));
    Plan plan = handMade(1);
    plan.routeString = "A,B";
    EXPECT_EQ(lines(print(plan, flight(), kComma))[4], "A.B"); // in the whole text
    EXPECT_EQ(lines(print(plan))[4], "A,B");
}

TEST(PrintedPlan, FlightLevelsRoundHalfUp) {
    Plan plan = handMade(1);
    plan.peakAltitude = 37050;
    EXPECT_EQ(lines(print(plan))[3], "ROUTE KSEA to KLAX\tFL 371\tETE 02:05");
}

TEST(PrintedPlan, FlightTagsLoseBlanksAndATrailingDash) {
    EXPECT_EQ(flightTag("AS ", " 12 "), "AS 12");
    EXPECT_EQ(flightTag("UAL", "8-"), "UAL8");
}

} // namespace
} // namespace gatewise
