#include "export/ExportFS2000.h"

#include "plan/Coordinates.h"

namespace gatewise {

namespace {

/// A point of no known type keeps the word of the point before.
std::string_view kindWord(const PlanPoint& point, std::string_view before) {
    switch (point.kind()) {
    case PointKind::Intersection:
        return point.highAltitude() ? "I+LOCWAY" : "I";
    case PointKind::Vor:
        return point.highAltitude() ? "V+LOCWAY" : "V";
    case PointKind::Ndb:
        return point.highAltitude() ? "N+LOCWAY" : "N";
    default:
        return before;
    }
}

std::string position(float latitude, float longitude, const NumberLocale& numbers) {
    return latitudeText(latitude, numbers) + ", " + longitudeText(longitude, numbers);
}

std::string airportId(const PlanAirport& airport, const NumberLocale& numbers) {
    return joined({airport.Icao.trimmed(), ", ", position(airport.Latitude, airport.Longitude, numbers), ", ",
                   altitudeText(airport.Elevation, numbers)});
}

std::string airportWaypoint(const PlanAirport& airport, const NumberLocale& numbers) {
    return joined({airport.Icao.trimmed(), ", A, ", position(airport.Latitude, airport.Longitude, numbers),
                   ", ", altitudeText(airport.Elevation, numbers), ","});
}

/// The altitude's text brings its own "+": the simulator's plans are written with both.
std::string fixWaypoint(const PlanPoint& point, std::string_view word, const NumberLocale& numbers) {
    return joined({point.pointId.trimmed(), ", ", word, ", ",
                   position(point.pointLatitude, point.pointLongitude, numbers), ", +",
                   altitudeText(point.pointAltitude, numbers), ",", point.pointAirway.view()});
}

class Section {
public:
    void key(std::string_view name, std::string_view value) { lines_.add({name, "=", value}); }
    void waypoint(std::string_view value) { key("waypoint." + std::to_string(waypoints_++), value); }
    TextLines lines_;

private:
    int waypoints_ = 0;
};

} // namespace

std::string fs2000Plan(const Plan& plan, const ExportFlight& flight, const NumberLocale& numbers) {
    const PlanAirport& from = plan.departureAirport;
    const PlanAirport& to = plan.destinationAirport;
    const PlanAirport& alternate = plan.alternateAirport;
    Section out;
    out.lines_.add("[flightplan]");
    out.key("title", flight.stem);
    out.key("description", joined({from.Icao.trimmed(), ", ", to.Icao.trimmed()}));
    out.key("type", "IFR");
    out.key("routetype", "3");
    out.key("cruising_altitude", formatInteger("000000", plan.peakAltitude));
    out.key("departure_id", airportId(from, numbers));
    out.key("departure_position", "");
    out.key("destination_id", airportId(to, numbers));
    if (flight.HaveAlternate) out.key("alternate_id", airportId(alternate, numbers));
    out.key("departure_name", from.Name.trimmed());
    out.key("destination_name", to.Name.trimmed());
    // The block may still hold the alternate of the flight before.
    out.key("alternate_name", flight.HaveAlternate ? alternate.Name.trimmed() : "");
    out.waypoint(airportWaypoint(from, numbers));

    std::string_view word;
    forEnRoute(plan, [&](int, const PlanPoint& point) {
        if (point.computed()) return;
        word = kindWord(point, word);
        out.waypoint(fixWaypoint(point, word, numbers));
    });
    out.waypoint(airportWaypoint(to, numbers));
    return out.lines_.text();
}

} // namespace gatewise
