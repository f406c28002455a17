#include "programs/Cycle.h"
#include "programs/Figures.h"
#include "programs/Formats.h"
#include "programs/Xml.h"

// GPX 1.1: the plan once as a route, with what its points are, and once as a track, with nothing but their
// places.

namespace gatewise::programs {

namespace {

constexpr const char* kGpxTypes[] = {"AIRPORT", "VOR", "NDB", "WAYPOINT", "USER"};

/// The format's longitudes end before 180.
std::string longitude(const RoutePoint& point) {
    return exactFigure(point.longitude >= 180 ? -180 : point.longitude);
}

void openPoint(Xml& xml, const char* tag, const RoutePoint& point) {
    xml.open(tag, {{"lat", exactFigure(point.latitude)}, {"lon", longitude(point)}});
    xml.leaf("ele", metresFigure(point.altitude));
}

void addGpxRoutePoint(Xml& xml, const RoutePoint& point) {
    openPoint(xml, "rtept", point);
    xml.leaf("name", point.ident);
    if (!point.airway.empty()) xml.leaf("cmt", point.airway);
    if (!point.name.empty()) xml.leaf("desc", point.name);
    xml.leaf("type", kGpxTypes[static_cast<int>(point.fix)]);
    xml.close();
}

void addTrackPoint(Xml& xml, const RoutePoint& point) {
    openPoint(xml, "trkpt", point);
    xml.close();
}

} // namespace

std::string gpx(const Route& route) {
    const std::string name = route.from().ident + " to " + route.to().ident;
    Xml xml;
    xml.open("gpx", {{"version", "1.1"},
                     {"creator", "Gatewise Terminal"},
                     {"xmlns", "http://www.topografix.com/GPX/1/1"},
                     {"xmlns:xsi", "http://www.w3.org/2001/XMLSchema-instance"},
                     {"xsi:schemaLocation",
                      "http://www.topografix.com/GPX/1/1 http://www.topografix.com/GPX/1/1/gpx.xsd"}});
    xml.open("metadata");
    xml.leaf("name", route.flight);
    xml.leaf("time", isoTime(route.written));
    xml.close();
    xml.open("rte");
    xml.leaf("name", name);
    xml.leaf("desc", route.flight);
    for (const RoutePoint& point : route.points) addGpxRoutePoint(xml, point);
    xml.close();
    xml.open("trk");
    xml.leaf("name", name);
    xml.open("trkseg");
    for (const RoutePoint& point : route.points) addTrackPoint(xml, point);
    return xml.take();
}

} // namespace gatewise::programs
