#include "map/RoutesMap.h"
#include "map/MapDrawing.h"

#include <algorithm>
#include <gtest/gtest.h>

namespace gatewise::map {
namespace {

constexpr int kMonday = 1, kTuesday = 2;

Tables tables() {
    Tables out;
    struct Row {
        const char *icao, *iata, *city, *name;
        float latitude, longitude;
    };
    // The table ends with a blank element.
    for (const Row& row : {Row{"KAAA", "AAA", "Alpha", "Alpha Intl", 40, -80},
                           {"KBBB", "BBB", "bravo", "", 41, -70},
                           {"KCCC", "CCC", "", "Charlie Field", 30, -90},
                           {"KDDD", "DDD", "Delta", "", 91, 0}}) {
        AirportRecord airport;
        airport.Icao = row.icao;
        airport.Iata = row.iata;
        airport.City = row.city;
        airport.Name = row.name;
        airport.Latitude = row.latitude;
        airport.Longitude = row.longitude;
        out.airports.insert(out.airports.end() - 1, airport);
    }
    return out;
}

FlightRecord flight(std::int16_t to, std::int16_t time, int days, const char* airline,
                    std::int16_t miles = 500) {
    FlightRecord out;
    out.DestIndex = to;
    out.DepartureTime = time;
    out.DaysMask = static_cast<std::uint8_t>(days);
    out.AirlineCode = airline;
    out.Miles = miles;
    return out;
}

const std::vector<FlightRecord> kFlights = {
    flight(1, 700, kMonday, "XX"), flight(1, 900, kMonday | kTuesday, "YY"), flight(1, 1800, kTuesday, "XX"),
    flight(2, 1000, kTuesday, "YY", 900), flight(2, 1200, kTuesday, "YY", 900)};

TEST(Destinations, AreCountedByDayAndAirlineOfTheBoard) {
    const Tables world = tables();
    auto list = destinationsOf(world, kFlights, {0, "", 800});
    ASSERT_EQ(list.size(), 2U);
    EXPECT_EQ(list[0].city, "bravo") << "the case of a letter does not part them";
    EXPECT_EQ(list[1].city, "Charlie Field") << "an airport without a city goes by its name";
    EXPECT_EQ(list[0].flights, 3);
    EXPECT_EQ(list[1].flights, 2);
    EXPECT_EQ(list[1].miles, 900);

    list = destinationsOf(world, kFlights, {kMonday, "", 800});
    EXPECT_EQ(list[0].flights, 2);
    EXPECT_EQ(list[1].flights, 0) << "a destination stays on the map on a day without a flight";
    EXPECT_EQ(list[1].next, -1);

    list = destinationsOf(world, kFlights, {0, "XX ", 800});
    EXPECT_EQ(list[0].flights, 2);
    EXPECT_EQ(list[1].flights, 0);
    EXPECT_TRUE(destinationsOf(world, {}, {}).empty());
}

TEST(Destinations, TheNextDepartureGoesByTheClock) {
    const Tables world = tables();
    const auto next = [&](int now) { return destinationsOf(world, kFlights, {0, "", now}).front().next; };
    EXPECT_EQ(next(0), 700);
    EXPECT_EQ(next(700), 700) << "one that leaves now is still to come";
    EXPECT_EQ(next(701), 900);
    EXPECT_EQ(next(1801), 700) << "behind the last comes the first of the morning";
}

TEST(Destinations, AirportsThatDoNotExistAreLeftOut) {
    const Tables world = tables();
    EXPECT_TRUE(destinationsOf(world,
                               {flight(-1, 700, 1, "XX"), flight(4, 700, 1, "XX"), flight(77, 700, 1, "XX"),
                                flight(3, 700, 1, "XX")},
                               {})
                    .empty())
        << "none, the blank element, outside the table, no latitude";
}

TEST(Destinations, AreSaidInWords) {
    EXPECT_EQ(destinationText({1, "BBB", "Bravo", 525, 12, 915}),
              "Bravo, 525 miles, 12 flights today, next 09:15");
    EXPECT_EQ(destinationText({1, "BBB", "Bravo", 0, 1, 0}), "Bravo, 0 miles, 1 flight today, next 00:00");
    EXPECT_EQ(destinationText({1, "BBB", "Bravo", 7, 0, -1}), "Bravo, 7 miles, 0 flights today");
}

TEST(RoutesScene, TheMoreFlightsTheThicker) {
    const Tables world = tables();
    std::vector<Destination> list = destinationsOf(world, kFlights, {kMonday, "", 800});
    MapScene scene = routesScene(world, 0, list, nullptr);
    EXPECT_EQ(scene.summary, "Routes of KAAA: 2 destinations, 2 flights today");
    ASSERT_EQ(scene.routes.size(), 2U);
    // Those without a flight lie below and stand back.
    EXPECT_EQ(scene.routes[0].id, 1);
    EXPECT_EQ(scene.routes[0].tone, Tone::Other);
    EXPECT_EQ(scene.routes[1].tone, Tone::Flight);
    EXPECT_GT(scene.routes[1].width, scene.routes[0].width);
    list[0].flights = 24;
    const double most = routesScene(world, 0, list, nullptr).routes[1].width;
    list[0].flights = 500;
    EXPECT_EQ(routesScene(world, 0, list, nullptr).routes[1].width, most);
    EXPECT_TRUE(routesScene(world, 9, list, nullptr).places.empty()) << "an airport that does not exist";
}

TEST(RoutesScene, OneIsSaidAsOne) {
    const Tables world = tables();
    const auto list = destinationsOf(world, {kFlights[0]}, {kMonday, "", 800});
    EXPECT_EQ(routesScene(world, 0, list, nullptr).summary, "Routes of KAAA: 1 destination, 1 flight today");
    EXPECT_EQ(routesScene(world, 0, {}, nullptr).summary, "Routes of KAAA: 0 destinations, 0 flights today");
}

TEST(RoutesScene, AMarkIsFoundUnderThePointer) {
    const Tables world = tables();
    const MapScene scene = routesScene(world, 0, destinationsOf(world, kFlights, {}), nullptr);
    const Sheet sheet;
    const Drawing drawing = drawMap(scene, fitted(scene, sheet.size), sheet);
    for (const DrawingMark& mark : drawing.marks) {
        const DrawingMark* found = markNear(drawing, sheet.size, {mark.at.x + 0.005, mark.at.y}, 8);
        ASSERT_NE(found, nullptr);
        EXPECT_EQ(found->id, mark.id);
    }
    EXPECT_EQ(markNear(drawing, sheet.size, {0.01, 0.01}, 8), nullptr);
    // Half the way to a destination lies on its route.
    const auto& line = *std::find_if(drawing.lines.begin(), drawing.lines.end(),
                                     [](const DrawingLine& l) { return l.id == 0; });
    const DrawingLine* found = lineNear(drawing, sheet.size, line.points[line.points.size() / 2], 4);
    ASSERT_NE(found, nullptr);
    EXPECT_EQ(found->id, 0);
}

} // namespace
} // namespace gatewise::map
