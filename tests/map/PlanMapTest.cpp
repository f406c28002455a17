#include "map/PlanMap.h"
#include "map/MapDrawing.h"
#include "map/Sight.h"

#include <algorithm>
#include <cmath>
#include <gtest/gtest.h>
#include <limits>

namespace gatewise::map {
namespace {

struct PointRow {
    const char* name;
    const char* type;
    float latitude, longitude;
    const char* airway;
};
constexpr PointRow kPoints[] = {{"KAAA", "  ", 40, -80, ""},        {"ABC", "V ", 40.5F, -78, "J12"},
                                {"*TOC*", "TC", 40.7F, -77, "J12"}, {"ND", "N ", 41, -76, "V3"},
                                {"STEPC", "SU", 41.2F, -75, ""},    {"FIXES", "I ", 41.5F, -74, "J9"},
                                {"KBBB", "  ", 42, -72, ""}};

Plan plan() {
    Plan out;
    out.planLast = static_cast<int>(std::size(kPoints)) - 1;
    out.totalDistance = 390;
    out.peakAltitude = 31000;
    out.departureAirport.Icao = "KAAA";
    out.departureAirport.Elevation = 1200;
    out.destinationAirport.Icao = "KBBB";
    for (int i = 0; i <= out.planLast; ++i) {
        const PointRow& row = kPoints[i];
        PlanPoint& point = out.at(i);
        point.pointName = row.name;
        point.pointType = row.type;
        point.pointLatitude = row.latitude;
        point.pointLongitude = row.longitude;
        point.pointAirway = row.airway;
        point.pointFrequency = "000.00";
        point.pointMinutes = 12 * i;
        point.pointAltitude = 10000;
    }
    out.at(1).pointDescription = "ALPHA BRAVO";
    out.at(1).pointFrequency = "114.90";
    return out;
}

const MapPlace& placeOf(const MapScene& scene, int id) {
    return *std::find_if(scene.places.begin(), scene.places.end(),
                         [&](const MapPlace& p) { return p.id == id; });
}

TEST(PlanScene, EveryPointIsAPlaceOfItsKind) {
    const MapScene scene = planScene(plan(), nullptr);
    ASSERT_EQ(scene.places.size(), 7U);
    const Tone tones[] = {Tone::Airport, Tone::Vor, Tone::Top,    Tone::Ndb,
                          Tone::Step,    Tone::Fix, Tone::Airport};
    for (int i = 0; i < 7; ++i) {
        EXPECT_EQ(placeOf(scene, i).tone, tones[i]) << i;
        EXPECT_EQ(placeOf(scene, i).name, kPoints[i].name);
    }
    EXPECT_EQ(placeOf(scene, 1).words, "ABC ALPHA BRAVO, 114.90, 10000 ft, 0:12");
    EXPECT_EQ(placeOf(scene, 0).words, "KAAA, 1200 ft, 0:00")
        << "an airport has no radio and lies on the ground";
    EXPECT_EQ(placeOf(scene, 6).words, "KBBB, 0 ft, 1:12");
    // Airports and tops ask for room before the fixes do.
    EXPECT_EQ(scene.places.front().id, 0);
    EXPECT_EQ(scene.places.back().id, 5);
}

TEST(PlanScene, TheLegsBearTheirAirways) {
    const MapScene scene = planScene(plan(), nullptr);
    ASSERT_EQ(scene.routes.size(), 1U);
    EXPECT_EQ(scene.routes[0].points.size(), 7U);
    EXPECT_EQ(scene.routes[0].names, (std::vector<std::string>{"J12", "J12", "V3", "", "J9", ""}));
    const Sheet sheet{{1200, 400}, 9, {}};
    const Drawing drawing = drawMap(scene, fitted(scene, sheet.size), sheet);
    for (const char* airway : {"J12", "V3", "J9"}) {
        EXPECT_TRUE(std::any_of(drawing.texts.begin(), drawing.texts.end(), [&](const DrawingText& t) {
            return t.text == airway;
        })) << airway;
    }
}

TEST(PlanScene, TheAlternateHasALegOfItsOwn) {
    Plan with = plan();
    with.alternateAirport.Icao = "KCCC";
    with.alternateAirport.Name = "Charlie";
    with.alternateAirport.Latitude = 43;
    with.alternateAirport.Longitude = -71;
    const MapScene scene = planScene(with, nullptr);
    ASSERT_EQ(scene.routes.size(), 2U);
    EXPECT_EQ(scene.routes[1].tone, Tone::Alternate);
    EXPECT_EQ(scene.routes[1].points.front(), placeOf(scene, 6).at);
    EXPECT_EQ(scene.routes[1].points.back(), (MapSpot{43, -71}));
    EXPECT_EQ(placeOf(scene, -1).words, "KCCC Charlie, alternate");
    with.alternateAirport.Latitude = std::numeric_limits<float>::quiet_NaN();
    EXPECT_EQ(planScene(with, nullptr).routes.size(), 1U);
}

TEST(PlanScene, AnAlternateThatThePlanHasAlreadyHasNoPlaceOfItsOwn) {
    Plan with = plan();
    const std::size_t places = planScene(with, nullptr).places.size();
    with.alternateAirport.Icao = "KAAA";
    with.alternateAirport.Latitude = with.at(0).pointLatitude;
    with.alternateAirport.Longitude = with.at(0).pointLongitude;
    MapScene scene = planScene(with, nullptr);
    EXPECT_EQ(scene.routes.size(), 2U) << "the way back";
    EXPECT_EQ(scene.places.size(), places);
    EXPECT_EQ(placeOf(scene, 0).tone, Tone::Airport);
    with.alternateAirport.Latitude = with.at(with.planLast).pointLatitude;
    with.alternateAirport.Longitude = with.at(with.planLast).pointLongitude;
    scene = planScene(with, nullptr);
    EXPECT_EQ(scene.routes.size(), 1U) << "there is no way to where the flight ends";
    EXPECT_EQ(scene.places.size(), places);
}

RunwayRecord runway(const char* id, float latitude, float longitude, float heading) {
    RunwayRecord out;
    out.runwayId = id;
    out.runwayLatitude = latitude;
    out.runwayLongitude = longitude;
    out.runwayHeading = heading;
    return out;
}

TEST(PlanScene, TwoEndsThatLookAtEachOtherAreARunway) {
    Plan with = plan();
    // 09 and 27 two miles apart on one parallel; 18 has no other end.
    with.departureAirport.runways = {runway("09", 40, -80.02F, 90), runway("27", 40, -79.98F, 270),
                                     runway("18", 40.01F, -80, 180)};
    MapScene scene = planScene(with, nullptr);
    ASSERT_EQ(scene.strips.size(), 1U);
    EXPECT_EQ(scene.strips[0].name, "09/27");
    // Parallel runways are not joined across.
    with.departureAirport.runways = {runway("09L", 40.01F, -80.02F, 90), runway("27R", 40.01F, -79.98F, 270),
                                     runway("09R", 39.99F, -80.02F, 90), runway("27L", 39.99F, -79.98F, 270)};
    scene = planScene(with, nullptr);
    ASSERT_EQ(scene.strips.size(), 2U);
    EXPECT_EQ(scene.strips[0].name, "09L/27R");
    EXPECT_EQ(scene.strips[1].name, "09R/27L");

    // They are seen near by only, as long as they are: 0.04 degrees at 40 north are 1.84 miles.
    const Sheet sheet{{400, 400}, 9, {}};
    const auto strips = [&](double span) {
        const Drawing drawing = drawMap(scene, {{40, -80}, span}, sheet);
        std::vector<DrawingLine> out;
        std::copy_if(drawing.lines.begin(), drawing.lines.end(), std::back_inserter(out),
                     [](const DrawingLine& l) { return l.tone == Tone::Runway; });
        return out;
    };
    EXPECT_TRUE(strips(20).empty());
    ASSERT_EQ(strips(0.1).size(), 2U);
    const DrawingLine near = strips(0.1).front();
    EXPECT_NEAR(std::fabs(near.points[0].x - near.points[1].x), 0.04 * std::cos(40 * kDegree) / 0.1, 1e-3);
}

TEST(PlanScene, APlanThatCannotBeDrawnIsEmpty) {
    EXPECT_TRUE(planScene(Plan(), nullptr).places.empty());
    Plan broken = plan();
    broken.at(3).pointLatitude = 91;
    EXPECT_TRUE(planScene(broken, nullptr).places.empty());
}

TEST(SamePlaces, AskForPlacesAndNotForWords) {
    const MapScene a = planScene(plan(), nullptr);
    MapScene b = a;
    b.places[2].words = "later";
    EXPECT_TRUE(samePlaces(a, b));
    b.places[2].at.latitude += 1;
    EXPECT_FALSE(samePlaces(a, b));
    b.places.pop_back();
    EXPECT_FALSE(samePlaces(a, b));
}

} // namespace
} // namespace gatewise::map
