#include "programs/Figures.h"
#include "programs/Formats.h"
#include "programs/Xml.h"

// A route of FlightGear: a list of properties, version 2, in which every value names its type.

namespace gatewise::programs {

namespace {

constexpr int kTransition = 18000; // feet: from here on a level is named, below an altitude

class Properties {
public:
    void text(const char* name, std::string_view value) { xml.leaf(name, value, {{"type", "string"}}); }
    void whole(const char* name, int value) { xml.leaf(name, std::to_string(value), {{"type", "int"}}); }
    void real(const char* name, const std::string& value) { xml.leaf(name, value, {{"type", "double"}}); }
    void yes(const char* name) { xml.leaf(name, "true", {{"type", "bool"}}); }

    Xml xml;
};

void addEnd(Properties& out, const char* name, const RoutePoint& airport) {
    out.xml.open(name);
    out.text("airport", airport.ident);
    out.xml.close();
}

void addCruise(Properties& out, const Route& route) {
    out.xml.open("cruise");
    if (route.cruiseAltitude >= kTransition)
        out.whole("flight-level", route.cruiseAltitude / 100);
    else
        out.whole("altitude-ft", route.cruiseAltitude);
    out.whole("knots", route.trueAirspeed);
    out.xml.close();
}

/// `flag` marks the two ends of the route; a crossing altitude is for the points between them.
void addPoint(Properties& out, std::size_t number, const RoutePoint& point, const char* flag) {
    out.xml.open("wp", {{"n", std::to_string(number)}});
    out.text("type", point.fix == Fix::User ? "basic" : "navaid");
    if (flag != nullptr) {
        out.yes(flag);
    } else {
        out.text("alt-restrict", "at");
        out.real("altitude-ft", exactFigure(point.altitude));
    }
    if (!point.airway.empty()) {
        out.text("airway", point.airway);
        out.whole("network", point.high ? 2 : 0); // 0: unknown
    }
    out.text("ident", point.ident);
    out.real("lon", exactFigure(point.longitude));
    out.real("lat", exactFigure(point.latitude));
    out.xml.close();
}

} // namespace

std::string flightGear(const Route& route) {
    const std::size_t last = route.points.size() - 1;
    Properties out;
    out.xml.open("PropertyList");
    out.whole("version", 2);
    out.text("flight-rules", "I");
    out.text("flight-type", "S");
    out.text("remarks", route.flight);
    out.whole("estimated-duration-minutes", route.minutes);
    addEnd(out, "departure", route.from());
    addEnd(out, "destination", route.to());
    addCruise(out, route);
    out.xml.open("route");
    for (std::size_t i = 0; i <= last; ++i)
        addPoint(out, i, route.points[i], i == 0 ? "departure" : i == last ? "approach" : nullptr);
    return out.xml.take();
}

} // namespace gatewise::programs
