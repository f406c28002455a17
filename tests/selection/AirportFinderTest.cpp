#include "selection/AirportFinder.h"

#include "support/Schedule.h"

#include <gtest/gtest.h>
#include <random>

namespace gatewise {
namespace {

using test::airport;

/// One field after the other, as the search is defined.
std::vector<std::int32_t> plainFind(const std::vector<AirportRecord>& airports, std::string_view text) {
    std::vector<std::int32_t> found;
    if (text.empty()) return found;
    for (std::size_t i = 0; i < airports.size(); ++i) {
        const auto& a = airports[i];
        if (containsNoCase(a.Iata.view(), text) || containsNoCase(a.Icao.view(), text) ||
            containsNoCase(a.Name.view(), text) || containsNoCase(a.City.view(), text))
            found.push_back(static_cast<std::int32_t>(i));
    }
    return found;
}

std::vector<AirportRecord> world() {
    return {airport("ATL", "KATL", "Hartsfield Atlanta Intl", "Atlanta"),
            airport("JFK", "KJFK", "John F Kennedy Intl", "New York"),
            airport("ATH", "LGAT", "Eleftherios Venizelos", "Athens"),
            airport("GVA", "LSGG", "Gen\xE8ve-Cointrin", "Geneva"), AirportRecord()};
}

TEST(AirportFinder, ThreeLettersAlsoFindNamesAndCitiesInAnyCase) {
    const AirportFinder finder(world());
    EXPECT_EQ(finder.find("atl"), std::vector<std::int32_t>{0});
    EXPECT_EQ(finder.find("ENN"), std::vector<std::int32_t>{1});
    EXPECT_EQ(finder.find("gat"), std::vector<std::int32_t>{2});
    EXPECT_EQ(finder.find("Intl"), (std::vector<std::int32_t>{0, 1}));
    EXPECT_EQ(finder.find("a"), (std::vector<std::int32_t>{0, 2, 3}));
    EXPECT_EQ(finder.find("GEN\xC8VE"), std::vector<std::int32_t>{3});
    EXPECT_TRUE(finder.find("xyzzy").empty());
}

TEST(AirportFinder, BlanksFindTheBlanksOfThePadding) {
    const AirportFinder finder(world());
    EXPECT_EQ(finder.find(" "), (std::vector<std::int32_t>{0, 1, 2, 3, 4}));
    EXPECT_EQ(finder.find("    "), (std::vector<std::int32_t>{0, 1, 2, 3, 4}));
    EXPECT_EQ(finder.find("York "), std::vector<std::int32_t>{1});
    EXPECT_EQ(finder.find(" York"), std::vector<std::int32_t>{1});
    EXPECT_EQ(finder.find(std::string(35, ' ')), std::vector<std::int32_t>{4});
    EXPECT_TRUE(finder.find(std::string(36, ' ')).empty());
    EXPECT_EQ(finder.find("lanta "), std::vector<std::int32_t>{0});
    EXPECT_TRUE(finder.find("KATL ").empty()); // a code that fills its field has no blank behind it
}

TEST(AirportFinder, NoHitReachesFromOneFieldIntoTheNext) {
    const AirportFinder finder(world());
    EXPECT_TRUE(finder.find("ATLK").empty());
    EXPECT_TRUE(finder.find("KATLHart").empty());
    EXPECT_TRUE(finder.find(std::string("ATL\0KATL", 8)).empty());
    EXPECT_TRUE(finder.find(std::string("\0", 1)).empty());
}

TEST(AirportFinder, AnEmptyTextOrAVeryLongOneFindsNothing) {
    const AirportFinder finder(world());
    EXPECT_TRUE(finder.find("").empty());
    EXPECT_TRUE(finder.find(std::string(200, 'a')).empty());
    EXPECT_TRUE(finder.find(std::string(200, ' ')).empty());
}

TEST(AirportFinder, AnEmptyTableFindsNothing) {
    EXPECT_TRUE(AirportFinder().find("a").empty());
    EXPECT_TRUE(AirportFinder().find(" ").empty());
    EXPECT_FALSE(AirportFinder().matches(0, "a"));
}

TEST(AirportFinder, OneAirportIsMatchedAsInASearch) {
    const AirportFinder finder(world());
    EXPECT_TRUE(finder.matches(2, "athens"));
    EXPECT_FALSE(finder.matches(0, "athens"));
    EXPECT_FALSE(finder.matches(2, ""));
    EXPECT_TRUE(finder.matches(4, " "));
    EXPECT_FALSE(finder.matches(5, " "));
    EXPECT_FALSE(finder.matches(-1, " "));
}

TEST(AirportFinder, FieldsWithZeroBytesAreSearchedToo) {
    auto airports = world();
    airports[1].Name = std::string_view("Zero\0Byte", 9);
    const AirportFinder finder(airports);
    EXPECT_EQ(finder.find("zero"), std::vector<std::int32_t>{1});
    EXPECT_EQ(finder.find(std::string("o\0b", 3)), std::vector<std::int32_t>{1});
    EXPECT_EQ(finder.find(std::string("o\0b", 3)), plainFind(airports, std::string("o\0b", 3)));
}

TEST(AirportFinder, EqualsThePlainSearchOnRandomWorlds) {
    std::mt19937 random(11);
    const std::string letters = "aAbBcE \xE9\xC9-9";
    const auto text = [&](std::size_t longest) {
        std::string out(random() % (longest + 1), ' ');
        for (auto& c : out) c = letters[random() % letters.size()];
        return out;
    };
    for (int round = 0; round < 200; ++round) {
        std::vector<AirportRecord> airports(1 + random() % 60);
        for (std::size_t i = 0; i + 1 < airports.size(); ++i)
            airports[i] = airport(text(3), text(4), text(35), text(33));
        const AirportFinder finder(airports);
        for (int search = 0; search < 20; ++search) {
            const auto wanted = text(search < 15 ? 4 : 36);
            const auto plain = plainFind(airports, wanted);
            ASSERT_EQ(finder.find(wanted), plain) << "round " << round << " text '" << wanted << "'";
            std::vector<std::int32_t> matched;
            for (std::int32_t i = 0; i < static_cast<std::int32_t>(airports.size()); ++i) {
                if (finder.matches(i, wanted)) matched.push_back(i);
            }
            ASSERT_EQ(matched, plain);
        }
    }
}

} // namespace
} // namespace gatewise
