#include "board/Paging.h"

#include "support/Schedule.h"

#include <gtest/gtest.h>

namespace gatewise {
namespace {

TEST(BoardPages, TwentyRowsAreOnePage) {
    EXPECT_EQ(boardPages(-1), 1);
    EXPECT_EQ(boardPages(0), 1);
    EXPECT_EQ(boardPages(19), 1);
    EXPECT_EQ(boardPages(20), 2);
    EXPECT_EQ(boardPages(39), 2);
    EXPECT_EQ(boardPages(40), 3);
}

TEST(BoardPages, WithoutRowsThereIsNoNextPage) {
    EXPECT_FALSE(hasNextPage(-1, 0));
    EXPECT_FALSE(hasNextPage(19, 0));
    EXPECT_TRUE(hasNextPage(20, 0));
    EXPECT_FALSE(hasNextPage(20, 1));
    EXPECT_FALSE(hasNextPage(20, 5));
}

TEST(BoardPages, BeforeTheFirstPageThereIsNone) {
    EXPECT_FALSE(hasPreviousPage(0));
    EXPECT_TRUE(hasPreviousPage(1));
}

TEST(HeaderText, IsTwoLines) {
    const auto airport = test::airport("ATL", "KATL", "Hartsfield", "Atlanta");
    EXPECT_EQ(headerText({.airport = airport,
                          .hours = 6,
                          .minutes = 5,
                          .seconds = 9,
                          .FavoriteAirlineName = " - Any Airline - ",
                          .arriving = false,
                          .dayText = "Any Day of the Week",
                          .BoardPage = 0,
                          .BoardRowCount = 45}),
              "FLIGHT INFORMATION for Hartsfield- 06:05:09\n"
              "- Any Airline - Departures for Any Day of the Week- Page 1 of 3");
    EXPECT_EQ(headerText({.airport = airport,
                          .hours = 23,
                          .minutes = 59,
                          .seconds = 0,
                          .FavoriteAirlineName = "Able",
                          .arriving = true,
                          .dayText = "Monday",
                          .BoardPage = 1,
                          .BoardRowCount = -1}),
              "FLIGHT INFORMATION for Hartsfield- 23:59:00\nAble Arrivals for Monday- Page 2 of 1");
}

BoardLists listsOf(std::size_t rows, std::size_t flights, std::string_view status) {
    BoardLists lists;
    lists.BoardRows.resize(flights);
    for (std::size_t i = 0; i < rows; ++i) {
        auto& row = lists.BoardRows[i];
        row.FlightText = " AB 0" + std::to_string(100 + i);
        row.CityText = "City,Name";
        row.TimeText = "0700";
        row.StatusText = status;
    }
    lists.BoardRowCount = static_cast<int>(rows) - 1;
    return lists;
}

TEST(BoardPage, RowTexts) {
    auto lists = listsOf(2, 30, "ON TIME");
    lists.BoardRows[1].FlightText = " XYZ0007";
    const auto rows = boardPage(lists, 0, false);
    EXPECT_EQ(rows[0].fltnum, " AB100");
    EXPECT_EQ(rows[1].fltnum, " XYZ7");
    EXPECT_EQ(rows[0].city, " City,Name");
    EXPECT_EQ(rows[0].time, "0700");
    EXPECT_EQ(rows[0].status, "ON TIME");
    for (const auto* text :
         {&rows[2].fltnum, &rows[2].city, &rows[2].time, &rows[2].status, &rows[19].status})
        EXPECT_EQ(*text, " ");
}

TEST(BoardPage, FlightNumbersOfFiveDigitsShowTheirLastFour) {
    auto lists = listsOf(1, 1, "ON TIME");
    lists.BoardRows[0].FlightText = " AB 12345";
    EXPECT_EQ(boardPage(lists, 0, false)[0].fltnum, " AB2345");
}

TEST(BoardPage, TheSecondPageStartsAtRowTwenty) {
    const auto rows = boardPage(listsOf(21, 21, "ON TIME"), 1, false);
    EXPECT_EQ(rows[0].fltnum, " AB120");
    EXPECT_EQ(rows[1].fltnum, " ");
}

TEST(BoardPage, AnOddRowAloneAtTheEndOfTheFlightsKeepsItsColour) {
    // Rows 0 and 1 are coloured as a pair; row 2 has no partner in the list of three flights.
    const auto rows = boardPage(listsOf(3, 3, "BOARDING"), 0, false);
    EXPECT_EQ(rows[0].statusColour, (StatusColour{255, 0, 0}));
    EXPECT_EQ(rows[1].statusColour, (StatusColour{255, 0, 0}));
    EXPECT_FALSE(rows[2].statusColour);
    EXPECT_FALSE(rows[3].statusColour);
    EXPECT_EQ(rows[2].status, "BOARDING");
}

TEST(BoardPage, ABlankRowKeepsItsColour) {
    EXPECT_FALSE(boardPage(listsOf(1, 10, "BOARDING"), 0, false)[1].statusColour);
}

TEST(BoardPage, AnEmptyBoardIsTwentyBlankRows) {
    const BoardLists lists;
    for (const auto& row : boardPage(lists, 0, false)) {
        EXPECT_EQ(row.fltnum + row.city + row.time + row.status, "    ");
        EXPECT_FALSE(row.statusColour);
    }
}

TEST(StatusColours, ByBoardAndRow) {
    struct Row {
        const char* status;
        bool arriving;
        StatusColour even, odd;
    };
    for (const auto& row : std::vector<Row>{{"ARRIVING", true, {255, 0, 0}, {255, 0, 0}},
                                            {"AT GATE", true, {0, 255, 255}, {0, 196, 196}},
                                            {"ON TIME", true, {0, 255, 0}, {0, 160, 0}},
                                            {"DEPARTED", false, {0, 255, 255}, {0, 196, 196}},
                                            {"BOARDING", false, {255, 0, 0}, {255, 0, 0}},
                                            {"AT GATE", false, {255, 255, 0}, {160, 160, 0}},
                                            {"ON TIME", false, {0, 255, 0}, {0, 160, 0}}}) {
        EXPECT_EQ(statusColour(row.status, row.arriving, false), row.even) << row.status;
        EXPECT_EQ(statusColour(row.status, row.arriving, true), row.odd) << row.status;
    }
    EXPECT_FALSE(statusColour("", false, false));
}

} // namespace
} // namespace gatewise
