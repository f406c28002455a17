#include "programs/Cycle.h"
#include "programs/Figures.h"
#include "programs/Formats.h"
#include "programs/Xml.h"

#include <set>
#include <utility>

// A flight plan of Garmin's units, FlightPlan v1: a table of points, then the route that names them. It knows
// neither airways nor altitudes.

namespace gatewise::programs {

namespace {

constexpr const char* kGarminTypes[] = {"AIRPORT", "VOR", "NDB", "INT", "USER WAYPOINT"};
constexpr std::size_t kLongestText = 25;

const char* typeOf(const RoutePoint& point) {
    return kGarminTypes[static_cast<int>(point.fix)];
}

/// Upper-case letters, digits, blanks and "/".
std::string garminText(std::string_view text) {
    return lineText(codeText(lineText(text), kLongestText, " /"));
}

void addTablePoint(Xml& xml, const RoutePoint& point) {
    xml.open("waypoint");
    xml.leaf("identifier", point.ident);
    xml.leaf("type", typeOf(point));
    xml.leaf("country-code", point.region); // empty where it is unknown
    xml.leaf("lat", exactFigure(point.latitude));
    xml.leaf("lon", exactFigure(point.longitude));
    xml.leaf("comment", garminText(point.name));
    xml.close();
}

/// A point that the route passes twice stands in the table once.
void addTable(Xml& xml, const Route& route) {
    std::set<std::pair<Fix, std::string>> seen;
    xml.open("waypoint-table");
    for (const RoutePoint& point : route.points) {
        if (seen.emplace(point.fix, point.ident).second) addTablePoint(xml, point);
    }
    xml.close();
}

void addRoutePoint(Xml& xml, const RoutePoint& point) {
    xml.open("route-point");
    xml.leaf("waypoint-identifier", point.ident);
    xml.leaf("waypoint-type", typeOf(point));
    xml.leaf("waypoint-country-code", point.region);
    xml.close();
}

} // namespace

std::string garmin(const Route& route) {
    Xml xml;
    xml.open("flight-plan", {{"xmlns", "http://www8.garmin.com/xmlschemas/FlightPlan/v1"}});
    xml.leaf("created", isoTime(route.written));
    addTable(xml, route);
    xml.open("route");
    xml.leaf("route-name", route.from().ident + " TO " + route.to().ident);
    xml.leaf("flight-plan-index", "1");
    for (const RoutePoint& point : route.points) addRoutePoint(xml, point);
    return xml.take();
}

} // namespace gatewise::programs
