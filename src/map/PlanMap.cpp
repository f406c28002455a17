#include "map/PlanMap.h"

#include "map/Globe.h"
#include "plan/PlanCharts.h"
#include "platform/Numbers.h"

#include <algorithm>
#include <cmath>

namespace gatewise::map {

namespace {

struct ToneRow {
    const char* type;
    Tone tone;
};
constexpr ToneRow kTones[] = {
    {"TC", Tone::Top}, {"TD", Tone::Top}, {"SU", Tone::Step}, {"SD", Tone::Step},
    {"V ", Tone::Vor}, {"HV", Tone::Vor}, {"N ", Tone::Ndb},  {"HN", Tone::Ndb},
};

Tone toneOf(const Plan& plan, int i) {
    if (i == 0 || i == plan.planLast) return Tone::Airport;
    for (const auto& row : kTones) {
        if (plan.at(i).pointType.view() == row.type) return row.tone;
    }
    return Tone::Fix;
}

MapSpot pointSpot(const PlanPoint& point) {
    return {static_cast<double>(point.pointLatitude), static_cast<double>(point.pointLongitude)};
}

bool drawable(const Plan& plan) {
    if (plan.planLast < 1 || !(plan.totalDistance > 0)) return false;
    for (int i = 0; i <= plan.planLast; ++i) {
        const MapSpot spot = pointSpot(plan.at(i));
        if (!onEarth(spot.latitude, spot.longitude)) return false;
    }
    return true;
}

void addPlaces(const Plan& plan, MapScene& scene) {
    // Airports and tops get their words before the fixes do.
    for (const bool important : {true, false}) {
        for (int i = 0; i <= plan.planLast; ++i) {
            const Tone tone = toneOf(plan, i);
            const bool first = tone == Tone::Airport || tone == Tone::Top || tone == Tone::Step;
            if (first != important) continue;
            const PlanPoint& point = plan.at(i);
            scene.places.push_back(
                {pointSpot(point), tone, std::string(point.pointName.trimmed()), pointWords(plan, i), i});
        }
    }
}

void addAlternate(const Plan& plan, MapScene& scene) {
    const PlanAirport& alternate = plan.alternateAirport;
    const auto code = alternate.Icao.trimmed();
    const MapSpot at{static_cast<double>(alternate.Latitude), static_cast<double>(alternate.Longitude)};
    if (code.empty() || !onEarth(at.latitude, at.longitude)) return;
    const MapSpot end = pointSpot(plan.at(plan.planLast));
    if (at == end) return;
    scene.routes.push_back({{end, at}, Tone::Alternate, 0, "", -1, {}});
    // Where the flight turns back to an airport of its own, that one stays what it is.
    if (std::any_of(scene.places.begin(), scene.places.end(), [&](const MapPlace& p) { return p.at == at; }))
        return;
    scene.places.push_back({at, Tone::Alternate, std::string(code),
                            std::string(code) + " " + std::string(alternate.Name.trimmed()) + ", alternate",
                            -1});
}

/// Whether two ends of runways look at each other along their headings.
bool opposite(const RunwayRecord& a, const RunwayRecord& b) {
    const double turn = std::fabs(
        std::remainder(static_cast<double>(a.runwayHeading) - static_cast<double>(b.runwayHeading), 360));
    if (turn < 178) return false;
    // The other end lies ahead: its bearing is the heading.
    const double north = static_cast<double>(b.runwayLatitude) - static_cast<double>(a.runwayLatitude);
    const double east = (static_cast<double>(b.runwayLongitude) - static_cast<double>(a.runwayLongitude)) *
                        std::cos(static_cast<double>(a.runwayLatitude) * kDegree);
    const double bearing = std::atan2(east, north) / kDegree;
    const bool near = std::hypot(north, east) < 0.1; // degrees
    return near && std::fabs(std::remainder(bearing - static_cast<double>(a.runwayHeading), 360)) < 3;
}

void addStrips(const PlanAirport& airport, MapScene& scene) {
    for (std::size_t i = 0; i < airport.runways.size(); ++i) {
        for (std::size_t k = i + 1; k < airport.runways.size(); ++k) {
            const RunwayRecord& a = airport.runways[i];
            const RunwayRecord& b = airport.runways[k];
            if (!onEarth(static_cast<double>(a.runwayLatitude), static_cast<double>(a.runwayLongitude)))
                continue;
            if (!opposite(a, b)) continue;
            scene.strips.push_back(
                {{static_cast<double>(a.runwayLatitude), static_cast<double>(a.runwayLongitude)},
                 {static_cast<double>(b.runwayLatitude), static_cast<double>(b.runwayLongitude)},
                 std::string(a.runwayId.trimmed()) + "/" + std::string(b.runwayId.trimmed())});
        }
    }
}

} // namespace

MapScene planScene(const Plan& plan, std::shared_ptr<const Land> land) {
    MapScene scene;
    scene.land = std::move(land);
    if (!drawable(plan)) return scene;
    MapRoute route;
    for (int i = 0; i <= plan.planLast; ++i) {
        route.points.push_back(pointSpot(plan.at(i)));
        if (i > 0) route.names.emplace_back(plan.at(i).pointAirway.trimmed());
    }
    scene.routes.push_back(std::move(route));
    addPlaces(plan, scene);
    addAlternate(plan, scene);
    for (const PlanAirport* airport :
         {&plan.departureAirport, &plan.destinationAirport, &plan.alternateAirport})
        addStrips(*airport, scene);
    scene.summary = "Route map, " + std::string(plan.departureAirport.Icao.trimmed()) + " to " +
                    std::string(plan.destinationAirport.Icao.trimmed()) + ", " +
                    formatSingle("#####0", plan.totalDistance) + " nautical miles, highest altitude " +
                    std::to_string(plan.peakAltitude) + " feet";
    return scene;
}

} // namespace gatewise::map
