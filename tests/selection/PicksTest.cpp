#include "selection/Picks.h"

#include "support/Schedule.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <random>

namespace gatewise {
namespace {

using test::airline;
using test::airport;
using test::flight;

class Picks : public ::testing::Test {
protected:
    Picks() {
        tables.airports = {airport("ATL", "KATL", "Hartsfield", "Atlanta"),
                           airport("JFK", "KJFK", "Kennedy", "New York"),
                           airport("LGA", "KLGA", "La Guardia", "New York"),
                           airport("ABQ", "KABQ", "Sunport", "albuquerque"), AirportRecord()};
        tables.airlines = {airline("AA", "Zulu Air"), airline("BB", "alpha Wings"),
                           airline("CC", "Beta Jet")};
        finder = AirportFinder(tables.airports);
    }
    static std::vector<std::string> texts(const std::vector<PickItem>& items) {
        std::vector<std::string> out;
        for (const auto& item : items) out.push_back(item.text);
        return out;
    }
    Tables tables;
    AirportFinder finder;
};

TEST_F(Picks, AirportsAreListedByTextWithTheirIndexBehind) {
    EXPECT_EQ(airportItems(tables, finder, "new york"),
              (std::vector<PickItem>{{"KJFK - Kennedy (JFK)", 1}, {"KLGA - La Guardia (LGA)", 2}}));
    EXPECT_EQ(airportItems(tables, finder, "LA"),
              (std::vector<PickItem>{{"KATL - Hartsfield (ATL)", 0}, {"KLGA - La Guardia (LGA)", 2}}));
}

TEST_F(Picks, AnEmptyAirportSearchIsEmpty) {
    EXPECT_TRUE(airportItems(tables, finder, "").empty());
}

TEST_F(Picks, ABlankFindsTheBlankAirportToo) {
    const auto items = airportItems(tables, finder, " ");
    ASSERT_EQ(items.size(), 5U);
    EXPECT_EQ(items[0], (PickItem{"     -  (   )", 4}));
}

TEST_F(Picks, ADestinationOfThreeFlightsIsListedOnce) {
    const std::vector<FlightRecord> flights = {flight("AA", 1, 0, 0, 0, 1), flight("AA", 2, 0, 0, 0, 3),
                                               flight("BB", 3, 0, 0, 0, 1), flight("CC", 4, 0, 0, 0, 1)};
    EXPECT_EQ(destinationItems(tables, finder, flights, "  "),
              (std::vector<PickItem>{{"albuquerque - Sunport (ABQ)", 3}, {"New York - Kennedy (JFK)", 1}}));
    EXPECT_EQ(destinationItems(tables, finder, flights, "kenn"),
              (std::vector<PickItem>{{"New York - Kennedy (JFK)", 1}}));
    EXPECT_TRUE(destinationItems(tables, finder, flights, "atlanta").empty());
}

TEST_F(Picks, DestinationsOutsideTheTableAreLeftOut) {
    EXPECT_TRUE(
        destinationItems(tables, finder, {flight("AA", 1, 0, 0, 0, -1), flight("AA", 1, 0, 0, 0, 9)}, "")
            .empty());
}

TEST_F(Picks, OfEqualLinesTheLastStays) {
    tables.airports[2] = tables.airports[1];
    finder = AirportFinder(tables.airports);
    EXPECT_EQ(alternateItems(tables, finder, "york"),
              (std::vector<PickItem>{{"New York - Kennedy (JFK)", 2}}));
    EXPECT_EQ(airportItems(tables, finder, "york").size(), 2U);
}

TEST_F(Picks, AlternatesOfASearchStandInTheirOrder) {
    std::swap(tables.airports[0], tables.airports[1]); // New York before Atlanta
    finder = AirportFinder(tables.airports);
    EXPECT_EQ(texts(alternateItems(tables, finder, "k")),
              (std::vector<std::string>{"albuquerque - Sunport (ABQ)", "Atlanta - Hartsfield (ATL)",
                                        "New York - Kennedy (JFK)", "New York - La Guardia (LGA)"}));
}

TEST_F(Picks, AlternatesAreSearchedTrimmedAndWithoutTheBlankAirport) {
    EXPECT_EQ(texts(alternateItems(tables, finder, "  sun  ")),
              std::vector<std::string>{"albuquerque - Sunport (ABQ)"});
    tables.airports.back().City = "Sunset";
    finder = AirportFinder(tables.airports);
    EXPECT_EQ(alternateItems(tables, finder, "sun").size(), 1U);
    EXPECT_EQ(airportItems(tables, finder, "sun").size(), 2U);
}

TEST_F(Picks, TheAirlinesOfTheBoardStandBehindAnyAirline) {
    const std::vector<FlightRecord> flights = {flight("AA", 1, 0, 0), flight("BB", 2, 0, 0),
                                               flight("AA", 3, 0, 0), flight("XX", 4, 0, 0)};
    EXPECT_EQ(texts(airlineItems(tables, flights)),
              (std::vector<std::string>{"", "- Any Airline -", "alpha Wings", "Zulu Air"}));
    EXPECT_EQ(boardAirlineItems(tables, flights),
              (std::vector<PickItem>{{"", 0}, {"alpha Wings", 0}, {"Zulu Air", 0}})); // without an index
    EXPECT_EQ(texts(airlineItems(tables, {})), std::vector<std::string>{"- Any Airline -"});
}

TEST_F(Picks, HomeAirlinesAreFoundInTheirName) {
    EXPECT_EQ(homeAirlineItems(tables, "A"),
              (std::vector<PickItem>{{"alpha Wings", 1}, {"Beta Jet", 2}, {"Zulu Air", 0}}));
    EXPECT_EQ(homeAirlineItems(tables, "jet"), (std::vector<PickItem>{{"Beta Jet", 2}}));
    EXPECT_EQ(homeAirlineItems(tables, "").size(), 3U);
    EXPECT_TRUE(homeAirlineItems(tables, std::string(200, 'A')).empty());
}

TEST_F(Picks, EqualTextsStayInTheOrderInWhichTheyWereAdded) {
    std::vector<PickItem> items = {{"b", 1}, {"A", 2}, {"B", 3}, {"a", 4}, {"_", 5}};
    sortItems(items);
    EXPECT_EQ(items, (std::vector<PickItem>{{"A", 2}, {"a", 4}, {"b", 1}, {"B", 3}, {"_", 5}}));
}

TEST_F(Picks, LettersBeyondAsciiStandBehindThoseOfAscii) {
    std::vector<PickItem> items = {{"A\xC9", 1}, {"AZ", 2}, {"Long enough \xC9", 3}, {"Long enough Z", 4}};
    sortItems(items);
    EXPECT_EQ(texts(items), (std::vector<std::string>{"AZ", "A\xC9", "Long enough Z", "Long enough \xC9"}));
}

TEST_F(Picks, TheOrderIsThatOfFoldedTextsOnRandomLines) {
    std::mt19937 random(31);
    const std::string letters = std::string("aAbB -\xE9\xC9") + '\0';
    for (int round = 0; round < 300; ++round) {
        std::vector<PickItem> items(random() % 40);
        for (std::size_t i = 0; i < items.size(); ++i) {
            items[i] = {random() % 2 == 0 ? "Common start " : "", static_cast<std::int32_t>(i)};
            for (auto n = random() % 10; n > 0; --n) items[i].text += letters[random() % letters.size()];
        }
        auto plain = items;
        std::stable_sort(plain.begin(), plain.end(),
                         [](const PickItem& a, const PickItem& b) { return lessFolded(a.text, b.text); });
        sortItems(items);
        ASSERT_EQ(items, plain) << "round " << round;
    }
}

} // namespace
} // namespace gatewise
