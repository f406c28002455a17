#include "board/SortBoard.h"

#include "board/Board.h"
#include "schedule/Lookups.h"
#include "support/Schedule.h"

#include <gtest/gtest.h>
#include <random>
#include <string>
#include <utility>

namespace gatewise {
namespace {

/// The selection sort as the board's order is defined, pass by pass. Entries move with their keys.
template<class Key> void plainSort(std::vector<std::pair<Key, int>>& list, const Key& sentinel) {
    std::size_t m = 0;
    for (std::size_t i = 0; i < list.size(); ++i) {
        Key best = sentinel;
        for (std::size_t j = i; j < list.size(); ++j) {
            if (list[j].first < best) best = list[j].first, m = j;
        }
        std::swap(list[i], list[m]);
    }
}

const std::string kTextSentinel = "zzzzzzzzzz";

template<class Key> std::vector<int> plainOrder(const std::vector<Key>& keys, const Key& sentinel) {
    std::vector<std::pair<Key, int>> list;
    for (const auto& key : keys) list.emplace_back(key, static_cast<int>(list.size()));
    plainSort(list, sentinel);
    std::vector<int> order;
    for (const auto& entry : list) order.push_back(entry.second);
    return order;
}

std::vector<int> orderOf(const std::vector<BoardSortKey>& keys) {
    const auto order = SortBoard(keys);
    return {order.begin(), order.end()};
}

std::vector<int> orderOfTimes(const std::vector<int>& times) {
    std::vector<BoardSortKey> keys;
    for (const int time : times) keys.push_back({static_cast<std::uint64_t>(time), 0, time < 9999});
    return orderOf(keys);
}

/// Texts of up to sixteen characters.
std::vector<int> orderOfTexts(const std::vector<std::string>& texts) {
    std::vector<BoardSortKey> keys;
    for (const auto& text : texts) {
        BoardSortKey key;
        for (std::size_t i = 0; i < 16; ++i) {
            auto& half = i < 8 ? key.high : key.low;
            half = half << 8U | (i < text.size() ? static_cast<unsigned char>(text[i]) : 0U);
        }
        key.canWin = text < kTextSentinel;
        keys.push_back(key);
    }
    return orderOf(keys);
}

TEST(SortBoard, EqualTimesKeepTheirListOrder) {
    EXPECT_EQ(orderOfTimes({800, 700, 700, 700}), (std::vector<int>{1, 2, 3, 0}));
    EXPECT_EQ(orderOfTimes({700, 700, 700}), (std::vector<int>{0, 1, 2}));
}

TEST(SortBoard, AnExchangeCarriesTiesBehindOneAnother) {
    // The first pass exchanges the first 0800 with 0700, so it lands behind the second.
    EXPECT_EQ(orderOfTimes({800, 800, 700}), (std::vector<int>{2, 1, 0}));
}

TEST(SortBoard, FlightNumbersOrderByAirlineFirst) {
    EXPECT_EQ(orderOfTexts({" BB 0001", " AAA0002", " AA 0003", " AA 00030"}),
              (std::vector<int>{2, 3, 1, 0}));
}

TEST(SortBoard, AKeyBeyondTheSentinelExchangesTheWrongPair) {
    // "zzzzzzzzzzz" is never the smallest: the last pass exchanges it with the place found before.
    EXPECT_EQ(orderOfTexts({"zzzzzzzzzzz", "b", "a"}), (std::vector<int>{2, 0, 1}));
    EXPECT_EQ(orderOfTexts({"~", "~~", "~~~"}), (std::vector<int>{2, 0, 1}));
    EXPECT_EQ(orderOfTimes({9999, 800}), (std::vector<int>{1, 0}));
}

TEST(SortBoard, NothingIsSortedToNothing) {
    EXPECT_TRUE(SortBoard({}).empty());
    EXPECT_EQ(orderOfTimes({9999}), std::vector<int>{0});
}

/// Whether both ways agree on lists with so many distinct keys.
void compareOnRandomLists(std::uint32_t seed, std::uint32_t longest, std::uint32_t keys, int rounds) {
    std::mt19937 random(seed);
    const std::vector<std::string> stems = {"",     "a",        "Zulu City,", "zzzzzzzzzz", "zzzzzzzzzzz",
                                            "\xFF", "long one "};
    for (int round = 0; round < rounds; ++round) {
        std::vector<std::string> texts(random() % (longest + 1));
        std::vector<int> times(texts.size());
        for (std::size_t i = 0; i < texts.size(); ++i) {
            const auto key = static_cast<std::uint32_t>(random()) % keys;
            texts[i] = stems[key % stems.size()] + (key % 2 == 0 ? std::to_string(key / 7) : std::string());
            times[i] = static_cast<int>(key % 11 == 10 ? 9990 + key % 20 : key * 5);
        }
        ASSERT_EQ(orderOfTexts(texts), plainOrder(texts, kTextSentinel)) << "round " << round;
        ASSERT_EQ(orderOfTimes(times), plainOrder(times, 9999)) << "round " << round;
    }
}

TEST(SortBoard, EqualsTheSelectionSortOnShortRandomLists) {
    compareOnRandomLists(1, 8, 6, 3000);
}

TEST(SortBoard, EqualsTheSelectionSortOnListsOfManyTies) {
    compareOnRandomLists(2, 120, 9, 200);
}

TEST(SortBoard, EqualsTheSelectionSortOnLongRandomLists) {
    compareOnRandomLists(3, 500, 400, 30);
}

std::vector<BoardEntry> built(const std::vector<FlightRecord>& flights, const Tables& tables,
                              BoardSort sort) {
    BoardLists lists;
    BuildDepartures(flights, tables, {FixedText<3>(kAnyAirlineCode), 0, "08", "00", sort}, lists);
    while (!lists.BoardList.empty() && lists.BoardList.back().FlightText.empty()) lists.BoardList.pop_back();
    return lists.BoardList;
}

template<class Key>
std::vector<int> plainOrder(const std::vector<BoardEntry>& list, Key (*keyOf)(const BoardEntry&),
                            const Key& sentinel) {
    std::vector<std::pair<Key, int>> entries;
    for (const auto& entry : list) entries.emplace_back(keyOf(entry), entry.FlightIndex);
    plainSort(entries, sentinel);
    std::vector<int> order;
    for (const auto& entry : entries) order.push_back(entry.second);
    return order;
}

std::vector<int> indicesOf(const std::vector<BoardEntry>& list) {
    std::vector<int> indices;
    for (const auto& entry : list) indices.push_back(entry.FlightIndex);
    return indices;
}

TEST(SortedBoard, EqualsTheSelectionSortOfTheUnsortedOne) {
    std::mt19937 random(4);
    const std::vector<std::string> names = {"Rome", "Rome-East", "rome", "Romeo",      "\xC4gypten",
                                            "Zulu", "Rome ",     "",     "zzzzzzzzzz", "zzzzzzzzzzz"};
    const std::vector<std::string> codes = {"AA", "AAA", " A", "Z9", "zzz"};
    for (int round = 0; round < 60; ++round) {
        Tables tables;
        tables.airports.clear();
        for (int i = 0; i < 30; ++i)
            tables.airports.push_back(test::airport("AAA", "K" + std::to_string(i),
                                                    names[random() % names.size()],
                                                    names[random() % names.size()]));
        std::vector<FlightRecord> flights(random() % 200);
        for (auto& flight : flights) {
            flight = test::flight(codes[random() % codes.size()], static_cast<int>(random() % 40) - 2,
                                  static_cast<int>(random() % 288 / 12 * 100 + random() % 12 * 5), 0, 0,
                                  static_cast<int>(random() % 30));
            if (random() % 10 == 0) flight.FlightNumber = static_cast<std::int16_t>(10000 + random() % 3);
        }
        const auto list = built(flights, tables, BoardSort::None);
        EXPECT_TRUE(std::is_sorted(list.begin(), list.end(), [](const auto& a, const auto& b) {
            return a.FlightIndex < b.FlightIndex;
        }));
        using Entry = const BoardEntry&;
        ASSERT_EQ(indicesOf(built(flights, tables, BoardSort::City)),
                  plainOrder<std::string>(
                      list, [](Entry e) { return e.CityText; }, kTextSentinel));
        ASSERT_EQ(indicesOf(built(flights, tables, BoardSort::FlightNumber)),
                  plainOrder<std::string>(
                      list, [](Entry e) { return e.FlightText; }, kTextSentinel));
        ASSERT_EQ(indicesOf(built(flights, tables, BoardSort::Time)),
                  plainOrder<int>(
                      list, [](Entry e) { return std::stoi(e.TimeText); }, 9999));
    }
}

TEST(SortedBoard, CitiesOrderInBinaryCommaIncluded) {
    Tables tables;
    tables.airports = {test::airport("HOM", "KHOM", "Home", "Home")};
    const std::vector<std::pair<std::string, std::string>> places = {
        {"Rome", "B"},  {"Rome-East", "A"}, {"Rome", "A"}, {"rome", "A"},
        {"Romeo", "A"}, {"Rom", "Z"},       {"\xC4", "A"}};
    std::vector<FlightRecord> flights;
    for (const auto& [city, name] : places) {
        flights.push_back(test::flight("AA", static_cast<int>(flights.size()), 900, 0, 0,
                                       static_cast<int>(flights.size()) + 1));
        tables.airports.push_back(test::airport("AAA", "K" + std::to_string(flights.size()), name, city));
    }
    // The city of the last flight lies beyond the sentinel: the last pass exchanges it with the place found
    // before.
    EXPECT_EQ(indicesOf(built(flights, tables, BoardSort::City)), (std::vector<int>{5, 2, 0, 1, 4, 6, 3}));
}

} // namespace
} // namespace gatewise
