#include "selection/Nearest.h"

#include "plan/Geometry.h"
#include "support/Schedule.h"

#include <cmath>
#include <gtest/gtest.h>
#include <limits>
#include <numeric>
#include <random>

namespace gatewise {
namespace {

using test::airport;

float milesBetween(const Tables& tables, std::int32_t from, std::int32_t to) {
    float course = 0;
    const auto& a = tables.airport(from);
    const auto& b = tables.airport(to);
    return Distance(a.Latitude, a.Longitude, b.Latitude, b.Longitude, course);
}

/// The complete selection sort, pass by pass.
std::vector<std::int32_t> plainClosest(const Tables& tables, std::int32_t destination) {
    const std::size_t count = tables.airports.size();
    std::vector<float> distances(count);
    std::vector<std::int32_t> airports(count);
    std::iota(airports.begin(), airports.end(), 0);
    for (std::size_t i = 0; i < count; ++i) {
        const float d = milesBetween(tables, destination, static_cast<std::int32_t>(i));
        if (std::isfinite(d)) distances[i] = d;
    }
    std::size_t k = 0;
    for (std::size_t i = 0; i < count; ++i) {
        float best = 10000;
        for (std::size_t j = i; j < count; ++j) {
            if (distances[j] < best) best = distances[j], k = j;
        }
        std::swap(distances[i], distances[k]);
        std::swap(airports[i], airports[k]);
    }
    airports.resize(std::min<std::size_t>(count, 25));
    return airports;
}

std::optional<std::int32_t> plainAlternate(const Tables& tables, std::int32_t destination, double minimum) {
    float best = 10000;
    std::optional<std::int32_t> found;
    for (std::int32_t i = 0; i <= tables.AirportCount(); ++i) {
        const float d = milesBetween(tables, destination, i);
        if (static_cast<double>(d) > minimum && d < best) best = d, found = i;
    }
    return found;
}

Tables worldOf(const std::vector<std::pair<float, float>>& positions) {
    Tables tables;
    tables.airports.clear();
    for (const auto& [latitude, longitude] : positions)
        tables.airports.push_back(airport("AAA", "KAAA", "Name" + std::to_string(tables.airports.size()),
                                          "City", latitude, longitude));
    tables.airports.emplace_back();
    return tables;
}

TEST(ClosestAirports, TheDestinationIsOneOfThem) {
    const auto tables = worldOf({{40, -100}, {41, -100}, {40.5F, -100}});
    EXPECT_EQ(closestAirports(tables, 0), (std::vector<std::int32_t>{0, 2, 1, 3}));
}

TEST(ClosestAirports, ATableOfFewerThanTwentyFiveEndsTheList) {
    EXPECT_EQ(closestAirports(worldOf({{1, 1}}), 0).size(), 2U);
    EXPECT_EQ(closestAirports(Tables(), 0).size(), 1U);
    EXPECT_EQ(closestAirports(Tables(), 99).size(), 1U);
}

TEST(ClosestAirports, AreListedByTextAndNotByDistance) {
    auto tables = worldOf({{40, -100}, {41, -100}});
    tables.airports[0].City = "Zulu";
    tables.airports[1].City = "Alpha";
    const auto items = closestAirportItems(tables, 0);
    ASSERT_EQ(items.size(), 3U);
    EXPECT_EQ(items[0].text, " -  ()");
    EXPECT_EQ(items[1], (PickItem{"Alpha - Name1 (AAA)", 1}));
    EXPECT_EQ(items[2].data, 0);
}

TEST(ClosestAirports, AirportsBeyondTenThousandMilesAreExchangedAround) {
    // Six near the destination and many on the other side of the world: the passes that find nothing rotate
    // the rest, and that shows in a list of 25.
    std::vector<std::pair<float, float>> positions;
    for (int i = 0; i < 6; ++i) positions.emplace_back(60.0F, 10.0F + static_cast<float>(i));
    for (int i = 0; i < 40; ++i) positions.emplace_back(-60.0F + static_cast<float>(i) * 0.1F, -170.0F);
    const auto tables = worldOf(positions);
    ASSERT_GT(milesBetween(tables, 0, 20), 10000);
    EXPECT_EQ(closestAirports(tables, 0), plainClosest(tables, 0));
}

TEST(ClosestAirports, APositionThatIsNoNumberCountsAsNoDistance) {
    auto tables = worldOf({{40, -100}, {41, -100}, {42, -100}});
    tables.airports[2].Latitude = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(closestAirports(tables, 0)[0], 2);
    EXPECT_EQ(closestAirports(tables, 0), plainClosest(tables, 0));
}

TEST(NearestAlternate, TheMinimumItselfIsNotTaken) {
    const auto tables = worldOf({{40, -100}, {41, -100}, {42, -100}});
    const double exact = milesBetween(tables, 0, 1);
    EXPECT_EQ(nearestAlternate(tables, 0, exact), 2);
    EXPECT_EQ(nearestAlternate(tables, 0, exact - 0.001), 1);
}

TEST(NearestAlternate, OfTwoAtTheSameDistanceTheEarlierStays) {
    const auto tables = worldOf({{40, -100}, {42, -101}, {42, -101}});
    EXPECT_EQ(nearestAlternate(tables, 0, 5), 1);
}

TEST(NearestAlternate, TheBlankAirportCanWin) {
    EXPECT_EQ(nearestAlternate(worldOf({{1, 1}}), 0, 5), 1);
}

TEST(NearestAlternate, WithAllAirportsNearerThanTheMinimumThereIsNone) {
    const auto tables = worldOf({{1, 1}, {2, 2}, {3, 3}});
    EXPECT_FALSE(nearestAlternate(tables, 0, 500));
}

TEST(NearestAlternate, APositionThatIsNoNumberIsPassedOver) {
    auto tables = worldOf({{40, -100}, {41, -100}, {42, -100}});
    tables.airports[1].Longitude = std::numeric_limits<float>::infinity();
    EXPECT_EQ(nearestAlternate(tables, 0, 5), 2);
    tables.airports[0].Latitude = std::numeric_limits<float>::quiet_NaN();
    EXPECT_FALSE(nearestAlternate(tables, 0, 5));
}

TEST(NearestAlternate, WithoutADestinationThereIsNone) {
    Tables tables;
    tables.airports = {airport("AAA", "KAAA", "Alpha", "A", 10, 10), AirportRecord()};
    float course = 77;
    for (const int nowhere : {-1, 2, 32767}) EXPECT_FALSE(nearestAlternate(tables, nowhere, 5, &course));
    EXPECT_EQ(course, 77);
}

TEST(Nearest, LeavesTheCourseToTheLastAirportMeasured) {
    const auto tables = worldOf({{40, -100}, {41, -100}});
    float course = 0;
    float last = 999;
    Distance(40, -100, 0, 0, course);
    closestAirports(tables, 0, &last);
    EXPECT_EQ(last, course);
    last = 999;
    (void)nearestAlternate(tables, 0, 5, &last);
    EXPECT_EQ(last, course);
}

/// Worlds with ties, with airports on the far side and with fewer than 25 airports.
TEST(Nearest, EqualsThePlainMethodOnRandomWorlds) {
    std::mt19937 random(23);
    const auto between = [&](float low, float high) {
        return std::uniform_real_distribution<float>(low, high)(random);
    };
    for (int round = 0; round < 200; ++round) {
        const std::size_t count = round % 4 == 0 ? random() % 30 : 30 + random() % 250;
        const bool farSide = round % 3 == 0;
        std::vector<std::pair<float, float>> positions;
        for (std::size_t i = 0; i < count; ++i) {
            if (i > 0 && random() % 4 == 0)
                positions.push_back(positions[random() % i]);
            else if (farSide && i > random() % 40)
                positions.emplace_back(between(-60, -50), between(160, 179));
            else if (farSide)
                positions.emplace_back(between(50, 60), between(-10, -1));
            else
                positions.emplace_back(std::round(between(-90, 90)), std::round(between(-180, 180)));
        }
        const auto tables = worldOf(positions);
        const auto destination = static_cast<std::int32_t>(random() % (count + 1));
        ASSERT_EQ(closestAirports(tables, destination), plainClosest(tables, destination))
            << "round " << round;
        const double minimum = static_cast<double>(random() % 500);
        ASSERT_EQ(nearestAlternate(tables, destination, minimum),
                  plainAlternate(tables, destination, minimum));
    }
}

} // namespace
} // namespace gatewise
