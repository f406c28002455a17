#include "board/Board.h"

#include "board/Paging.h"
#include "schedule/Lookups.h"
#include "support/Schedule.h"

#include <gtest/gtest.h>

namespace gatewise {
namespace {

using test::flight;

class Board : public ::testing::Test {
protected:
    Board() {
        tables.airports = {test::airport("HOM", "KHOM", "Home Field", "Hometown"),
                           test::airport("AAA", "KAAA", "Alpha", "Zulu City"),
                           test::airport("BBB", "KBBB", "Beta", "Yankee Town"),
                           test::airport("HO2", "KHOM", "Home Heliport", "Hometown"), AirportRecord()};
        request.BoardAirlineCode = kAnyAirlineCode;
        request.hoursText = "12";
        request.minutesText = "00";
        request.sort = BoardSort::None;
    }
    void departures() { BuildDepartures(flights, tables, request, lists); }
    void arrivals() { BuildArrivals(flights, tables, request, lists); }

    /// Status of the only flight, which departs (arrives) so many minutes after 12:00; empty when it is not
    /// shown.
    std::string statusAt(int minutes, bool arriving) {
        const int time = (720 + minutes) / 60 * 100 + (720 + minutes) % 60;
        flights = {flight("AA", 1, time, time), flight("AA", 2, 1500, 1500)};
        lists = {};
        arriving ? arrivals() : departures();
        const auto& first = lists.BoardRows[0];
        if (lists.BoardRowCount < 0 || first.FlightIndex != 0) return {};
        EXPECT_EQ(first.Minutes, minutes);
        return first.StatusText;
    }
    [[nodiscard]] std::vector<int> shown() const {
        std::vector<int> indices;
        for (int i = 0; i <= lists.BoardRowCount; ++i)
            indices.push_back(lists.BoardRows.at(static_cast<std::size_t>(i)).FlightIndex);
        return indices;
    }

    Tables tables;
    std::vector<FlightRecord> flights;
    BoardRequest request;
    BoardLists lists;
};

TEST_F(Board, EntryTexts) {
    flights = {flight("AB", 7, 1305, 1), flight("XYZ", 1234, 1259, 2)};
    departures();
    const auto& entry = lists.BoardRows[0];
    EXPECT_EQ(entry.FlightText, " AB 0007");
    EXPECT_EQ(entry.CityText, "Zulu City,Alpha");
    EXPECT_EQ(entry.TimeText, "1305");
    EXPECT_EQ(entry.Minutes, 65);
    EXPECT_EQ(entry.RowFlag, 0);
    EXPECT_EQ(lists.BoardRows[1].FlightText, " XYZ1234");
    EXPECT_EQ(lists.BoardRows[1].FlightIndex, 1);
}

TEST_F(Board, ArrivalsShowTheOriginAndTheArrivalTime) {
    flights = {flight("AB", 7, 800, 1305, 2, 0)};
    arrivals();
    EXPECT_EQ(lists.BoardRows[0].CityText, "Yankee Town,Beta");
    EXPECT_EQ(lists.BoardRows[0].TimeText, "1305");
}

TEST_F(Board, DepartureStatusByMinutesFromNow) {
    EXPECT_EQ(statusAt(0, false), "DEPARTED");
    EXPECT_EQ(statusAt(-1, false), "DEPARTED");
    EXPECT_EQ(statusAt(1, false), "BOARDING");
    EXPECT_EQ(statusAt(19, false), "BOARDING");
    EXPECT_EQ(statusAt(20, false), "AT GATE");
    EXPECT_EQ(statusAt(59, false), "AT GATE");
    EXPECT_EQ(statusAt(60, false), "ON TIME");
}

TEST_F(Board, ArrivalStatusByMinutesFromNow) {
    EXPECT_EQ(statusAt(0, true), "AT GATE");
    EXPECT_EQ(statusAt(1, true), "ARRIVING");
    EXPECT_EQ(statusAt(10, true), "ARRIVING");
    EXPECT_EQ(statusAt(11, true), "ON TIME");
}

TEST_F(Board, DeparturesStayForAnHourAndArrivalsForHalfAnHour) {
    EXPECT_EQ(statusAt(-60, false), "DEPARTED");
    EXPECT_EQ(statusAt(-61, false), "");
    EXPECT_EQ(statusAt(-30, true), "AT GATE");
    EXPECT_EQ(statusAt(-31, true), "");
}

TEST_F(Board, MidnightHasNoSpecialTreatment) {
    request.hoursText = "23";
    request.minutesText = "50";
    flights = {flight("AA", 1, 10, 10)};
    departures();
    EXPECT_EQ(lists.BoardRowCount, -1);
    request.hoursText = "00";
    request.minutesText = "10";
    flights = {flight("AA", 1, 2350, 2350)};
    departures();
    ASSERT_EQ(lists.BoardRowCount, 0);
    EXPECT_EQ(lists.BoardRows[0].Minutes, 1420);
    EXPECT_EQ(lists.BoardRows[0].StatusText, "ON TIME");
}

TEST_F(Board, AFlightBetweenAirportsOfTheSameIcaoCodeIsNeverShown) {
    flights = {flight("AA", 1, 1300, 1300, 0, 3), flight("AA", 2, 1300, 1300, 0, 0),
               flight("AA", 3, 1300, 1300, 0, 1)};
    departures();
    EXPECT_EQ(shown(), std::vector<int>{2});
    arrivals();
    EXPECT_EQ(shown(), std::vector<int>{2});
}

TEST_F(Board, OneAirlineIsComparedTrimmed) {
    flights = {flight("AA", 1, 1300, 1300), flight(" AA", 2, 1301, 1300), flight("AAB", 3, 1302, 1300)};
    request.BoardAirlineCode = "AA";
    departures();
    EXPECT_EQ(shown(), (std::vector<int>{0, 1}));
}

TEST_F(Board, AnyDayPassesEveryFlight) {
    flights = {flight("AA", 1, 1300, 1300), flight("AA", 2, 1301, 1301), flight("AA", 3, 1302, 1302)};
    flights[0].DaysMask = 0;
    flights[1].DaysMask = 4;
    departures();
    EXPECT_EQ(shown(), (std::vector<int>{0, 1, 2}));
    request.day = 4;
    departures();
    EXPECT_EQ(shown(), (std::vector<int>{1, 2}));
}

TEST_F(Board, ArrivalsLeaveOutTheLastFlightWhenAllPass) {
    flights = {flight("AA", 1, 0, 1300), flight("AA", 2, 0, 1301), flight("AA", 3, 0, 1302)};
    arrivals();
    EXPECT_EQ(shown(), (std::vector<int>{0, 1}));
    EXPECT_EQ(lists.BoardList.size(), 3U);
    EXPECT_EQ(lists.BoardList[2].FlightText, "");
    flights[1].DaysMask = 0;
    request.day = 1;
    arrivals();
    EXPECT_EQ(shown(), (std::vector<int>{0, 2}));
}

TEST_F(Board, AnArrivalsListOfOneFlightShowsItsRow) {
    flights = {flight("AA", 1, 0, 1300)};
    arrivals();
    EXPECT_EQ(shown(), std::vector<int>{0});
}

TEST_F(Board, AllDeparturesOfAListAreShown) {
    flights = {flight("AA", 1, 1300, 0), flight("AA", 2, 1301, 0)};
    departures();
    EXPECT_EQ(shown(), (std::vector<int>{0, 1}));
}

TEST_F(Board, NeighboursOfTheSameFlightAreShownOnce) {
    flights = {flight("AA", 1, 1300, 0), flight("AA", 1, 1301, 0), flight("BB", 1, 1302, 0),
               flight("AA", 1, 1303, 0), flight("CC", 1, 500, 0)};
    departures();
    EXPECT_EQ(shown(), (std::vector<int>{0, 2, 3}));
    request.sort = BoardSort::FlightNumber;
    departures();
    EXPECT_EQ(shown(), (std::vector<int>{0, 2}));
}

TEST_F(Board, RepeatsUpToTheEndOfAFullListKeepTheOldNumberOfRows) {
    flights = {flight("AA", 1, 1300, 0), flight("BB", 2, 1301, 0), flight("BB", 2, 1302, 0)};
    lists.BoardRowCount = 7;
    departures();
    EXPECT_EQ(lists.BoardRowCount, 7);
    EXPECT_EQ(lists.BoardRows[1].FlightText, " BB 0002");
    EXPECT_EQ(lists.BoardRows[2].FlightText, "");

    // One flight that is not shown leaves a blank entry at the end, and the number of rows is set.
    flights.push_back(flight("CC", 3, 100, 0));
    departures();
    EXPECT_EQ(lists.BoardRowCount, 1);
}

TEST_F(Board, ARowNumberBeyondTheListShowsBlankRows) {
    flights = {flight("AA", 1, 1300, 0), flight("AA", 1, 1301, 0)};
    lists.BoardRowCount = 45;
    departures();
    ASSERT_EQ(lists.BoardRowCount, 45);
    const auto rows = boardPage(lists, 0, false);
    EXPECT_EQ(rows[0].fltnum, " AA1");
    EXPECT_EQ(rows[1].fltnum, " ");
    EXPECT_EQ(rows[1].status, "");
    EXPECT_EQ(rows[2].status, " ");
    EXPECT_EQ(boardPage(lists, 2, false)[5].city, " ");
}

TEST_F(Board, NoFlightsAreNoFailure) {
    departures();
    EXPECT_EQ(lists.BoardRowCount, -1);
    EXPECT_TRUE(lists.BoardRows.empty());
    lists.BoardRowCount = 3;
    arrivals();
    EXPECT_EQ(lists.BoardRowCount, -1);
}

TEST_F(Board, EveryBuildStartsFromBlankLists) {
    flights = {flight("AA", 1, 1300, 0), flight("BB", 2, 1301, 0), flight("CC", 3, 1302, 0)};
    departures();
    request.BoardAirlineCode = "CC";
    departures();
    ASSERT_EQ(lists.BoardRowCount, 0);
    EXPECT_EQ(lists.BoardRows[0].FlightText, " CC 0003");
    EXPECT_EQ(lists.BoardRows[0].FlightIndex, 2);
    for (std::size_t i = 1; i < 3; ++i) {
        EXPECT_EQ(lists.BoardRows[i].FlightText, "");
        EXPECT_EQ(lists.BoardRows[i].CityText, "");
        EXPECT_EQ(lists.BoardRows[i].Minutes, 0);
        EXPECT_EQ(lists.BoardRows[i].FlightIndex, 0);
        EXPECT_EQ(lists.BoardList[i].FlightText, "");
    }
}

TEST_F(Board, TimesAndIndicesThatAreNoneAreNotShown) {
    flights = {flight("AA", 1, 1360, 0), flight("AA", 2, 2400, 0), flight("AA", 3, -5, 0),
               flight("AA", 4, 1300, 0, -3, 900)};
    departures();
    EXPECT_EQ(lists.BoardRowCount, -1); // both indices stand for the blank airport
    flights = {flight("AA", 4, 1300, 0, 0, 900), flight("AA", 5, 1300, 0, 0, 1)};
    departures();
    EXPECT_EQ(lists.BoardRows[0].CityText, ",");
    request.hoursText = "";
    departures();
    EXPECT_EQ(lists.BoardRowCount, -1);
}

TEST_F(Board, ATimeOfFiveDigitsShowsThemAll) {
    flights = {flight("AA", 1, 12345, 0)};
    departures();
    ASSERT_EQ(lists.BoardRowCount, 0);
    EXPECT_EQ(lists.BoardRows[0].TimeText, "12345");
    EXPECT_EQ(lists.BoardRows[0].Minutes, 45);
    EXPECT_EQ(lists.BoardRows[0].StatusText, "AT GATE");
}

TEST_F(Board, DotsThreeAndFourShowTheProgress) {
    std::vector<int> dots;
    flights = {flight("AA", 1, 1300, 0)};
    BuildDepartures(flights, tables, request, lists, [&](int n) { dots.push_back(n); });
    BuildArrivals(flights, tables, request, lists, [&](int n) { dots.push_back(n); });
    EXPECT_EQ(dots, (std::vector<int>{3, 4, 3, 4}));
}

} // namespace
} // namespace gatewise
