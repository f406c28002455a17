#include "schedule/Lookups.h"

#include "schedule/Readers.h"
#include "support/Schedule.h"

#include <gtest/gtest.h>
#include <random>

namespace gatewise {
namespace {

using test::aircraft;
using test::airline;
using test::airport;

/// Every look-up is tried on tables as loaded, with their indexes, and on tables filled by hand, without.
class Lookups : public ::testing::TestWithParam<bool> {
protected:
    void SetUp() override {
        tables.airports = {airport("ATL", "KATL", "Hartsfield", "Atlanta"),
                           airport("JFK", "KJFK", "Kennedy", "New York"),
                           airport("JFK", "XJFK", "Second", "Elsewhere"),
                           airport("AB ", "KAB", "Padded", "Short"), AirportRecord()};
        tables.airlines = {airline("AB", "First Able", "ABLE ONE"), airline("XYZ", "Long Code", "LONG"),
                           airline("AB", "Last Able", "ABLE TWO"), airline("CD", "First Able", "OTHER"),
                           airline(" Q", "Leading Blank", "QUEBEC")};
        tables.aircraft = {aircraft("733", "Boeing 737-300", "Boeing", "B733"),
                           aircraft("DH ", "Dash", "DHC", "DASH"),
                           aircraft("733", "Again", "Other", "B733X")};
        if (GetParam()) indexTables(tables);
    }
    Tables tables;
};
INSTANTIATE_TEST_SUITE_P(Tables, Lookups, ::testing::Bool(),
                         [](const auto& test) { return test.param ? "indexed" : "scanned"; });

TEST_P(Lookups, AirportNamesAreThoseOfTheFirstMatchTrimmed) {
    EXPECT_EQ(find_origin_name(tables, "ATL"), "Atlanta");
    EXPECT_EQ(find_origin_name(tables, "JFK"), "New York");
    EXPECT_EQ(find_arrival_name(tables, "JFK"), "New York");
}

TEST_P(Lookups, AirportCodesAreComparedUntrimmed) {
    EXPECT_EQ(find_origin_name(tables, "AB "), "Short");
    EXPECT_EQ(find_origin_name(tables, "AB"), "");
    EXPECT_EQ(find_origin_name(tables, "ATL "), "");
    EXPECT_EQ(find_origin_name(tables, ""), "");
    EXPECT_EQ(find_origin_name(tables, "atl"), "");
    EXPECT_EQ(find_origin_name(tables, "   "), ""); // the blank airport is found and has no city
}

TEST_P(Lookups, TheBlankAirportTakesPart) {
    tables.airports.back().City = "Nowhere";
    EXPECT_EQ(find_origin_name(tables, "   "), "Nowhere");
}

TEST_P(Lookups, AirlinesAreThoseOfTheLastMatchWithCodesTrimmed) {
    EXPECT_EQ(find_airline(tables, "AB "), "Last Able");
    EXPECT_EQ(find_airline(tables, "AB"), "Last Able");
    EXPECT_EQ(find_airline(tables, "  AB   "), "Last Able");
    EXPECT_EQ(find_airline(tables, "Q"), "Leading Blank");
    EXPECT_EQ(find_airline(tables, "XYZ"), "Long Code");
    EXPECT_EQ(find_airline(tables, "XYZW"), "");
    EXPECT_EQ(find_airline(tables, ""), "");
}

TEST_P(Lookups, AnAirlineCodeInLowerCaseFindsNothing) {
    EXPECT_EQ(find_airline(tables, "ab"), "");
    EXPECT_EQ(find_pf_callsign(tables, "ab"), "");
}

TEST_P(Lookups, CallsignsComeUntrimmed) {
    EXPECT_EQ(find_pf_callsign(tables, "AB "), "ABLE TWO                ");
    EXPECT_EQ(find_pf_callsign(tables, "??"), "");
}

TEST_P(Lookups, AircraftAreComparedAndReturnedUntrimmedLastMatchFirst) {
    EXPECT_EQ(find_aircraft(tables, "733"), "Again" + std::string(45, ' '));
    EXPECT_EQ(find_pf_compnay(tables, "733"), "Other" + std::string(22, ' '));
    EXPECT_EQ(find_pf_aircraft(tables, "733"), "B733X" + std::string(24, ' '));
    EXPECT_EQ(find_aircraft(tables, "DH").size(), 0U);
    EXPECT_EQ(find_aircraft(tables, "DH ").substr(0, 5), "Dash ");
}

TEST_P(Lookups, AnEmptyTableFindsNothing) {
    tables.aircraft.clear();
    tables.airlines.clear();
    if (GetParam()) indexTables(tables);
    EXPECT_EQ(find_aircraft(tables, "733"), "");
    EXPECT_EQ(find_pf_compnay(tables, "733"), "");
    EXPECT_EQ(find_airline(tables, "AB"), "");
    EXPECT_EQ(find_airline_code(tables, "Able"), "");
}

TEST_P(Lookups, AirlineCodeOfANameIsTheLastMatchUntrimmed) {
    EXPECT_EQ(find_airline_code(tables, "First Able"), "CD ");
    EXPECT_EQ(find_airline_code(tables, "  First Able "), "CD ");
    EXPECT_EQ(find_airline_code(tables, "Long Code"), "XYZ");
    EXPECT_EQ(find_airline_code(tables, "first able"), "");
    EXPECT_EQ(firstAirlineCode(tables, "First Able"), "AB ");
    EXPECT_EQ(firstAirlineCode(tables, "Nobody"), "");
}

TEST_P(Lookups, AnyAirlineBecomesItsFirstThreeCharacters) {
    EXPECT_EQ(find_airline_code(tables, "- Any Airline -"), "- Any Airline -");
    const FixedText<3> code(find_airline_code(tables, "- Any Airline -"));
    EXPECT_EQ(code.view(), kAnyAirlineCode);
}

TEST(GetMeal, ListsBreakfastFirstAndBeverageLastWithItsBlank) {
    EXPECT_EQ(get_meal(0), "None");
    EXPECT_EQ(get_meal(31), "B L D S Bev ");
    EXPECT_EQ(get_meal(1), "B ");
    EXPECT_EQ(get_meal(20), "D Bev ");
    EXPECT_EQ(get_meal(224), "None");
}

TEST(GetDay, AnyDayIsAlwaysTrue) {
    EXPECT_TRUE(get_day(0, 0));
    EXPECT_FALSE(get_day(0, 4));
    EXPECT_TRUE(get_day(4, 4));
    EXPECT_FALSE(get_day(4, 2));
    EXPECT_TRUE(get_day(127, 64));
}

TEST(DistinctAirlines, KeepTheOrderOfFirstAppearance) {
    EXPECT_EQ(distinctAirlines({test::flight("ZZ", 1, 0, 0), test::flight("AA", 2, 0, 0),
                                test::flight("ZZ", 3, 0, 0), test::flight("MM", 4, 0, 0)}),
              (std::vector<FixedText<3>>{"ZZ", "AA", "MM"}));
    EXPECT_TRUE(distinctAirlines({}).empty());
}

TEST(CodeIndex, FindsWhatAScanFindsOnRandomTables) {
    std::mt19937 random(7);
    const std::string letters = "AB \xC4";
    const auto code = [&] {
        std::string text;
        for (int i = 0; i < 3; ++i) text += letters[random() % letters.size()];
        return text;
    };
    for (int round = 0; round < 100; ++round) {
        CodeIndex first;
        CodeIndex last;
        std::vector<std::string> codes(random() % 80);
        first.start(codes.size());
        last.start(codes.size());
        for (auto& c : codes) {
            c = code();
            first.addFirstCounts(c);
            last.addLastCounts(c);
        }
        for (int i = 0; i < 50; ++i) {
            const auto wanted = code();
            std::optional<std::size_t> firstRow;
            std::optional<std::size_t> lastRow;
            for (std::size_t row = 0; row < codes.size(); ++row) {
                if (codes[row] != wanted) continue;
                if (!firstRow) firstRow = row;
                lastRow = row;
            }
            ASSERT_EQ(first.find(wanted), firstRow);
            ASSERT_EQ(last.find(wanted), lastRow);
        }
    }
    EXPECT_FALSE(CodeIndex().find("ABC"));
}

} // namespace
} // namespace gatewise
