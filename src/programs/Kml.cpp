#include "programs/Figures.h"
#include "programs/Formats.h"
#include "programs/Xml.h"

// KML 2.2: the route as a line at its altitudes, with a curtain down to the ground, and a mark for each
// point.

namespace gatewise::programs {

namespace {

/// Longitude, latitude, metres.
std::string coordinates(const RoutePoint& point) {
    return exactFigure(point.longitude) + "," + exactFigure(point.latitude) + "," +
           metresFigure(point.altitude);
}

/// Colours are transparency, blue, green, red.
void addStyle(Xml& xml) {
    xml.open("Style", {{"id", "route"}});
    xml.open("LineStyle");
    xml.leaf("color", "ff31c5ff");
    xml.leaf("width", "3");
    xml.close();
    xml.open("PolyStyle");
    xml.leaf("color", "4031c5ff");
    xml.close();
    xml.close();
}

void addLine(Xml& xml, const Route& route) {
    std::string all;
    for (const RoutePoint& point : route.points) all += (all.empty() ? "" : " ") + coordinates(point);
    xml.open("Placemark");
    xml.leaf("name", route.from().ident + " to " + route.to().ident);
    xml.leaf("styleUrl", "#route");
    xml.open("LineString");
    xml.leaf("extrude", "1");
    xml.leaf("tessellate", "1");
    xml.leaf("altitudeMode", "absolute");
    xml.leaf("coordinates", all);
    xml.close();
    xml.close();
}

void addMark(Xml& xml, const RoutePoint& point) {
    xml.open("Placemark");
    xml.leaf("name", point.ident);
    if (!point.name.empty()) xml.leaf("description", point.name);
    xml.open("Point");
    xml.leaf("altitudeMode", "absolute");
    xml.leaf("coordinates", coordinates(point));
    xml.close();
    xml.close();
}

} // namespace

std::string kml(const Route& route) {
    Xml xml;
    xml.open("kml", {{"xmlns", "http://www.opengis.net/kml/2.2"}});
    xml.open("Document");
    xml.leaf("name", route.flight);
    addStyle(xml);
    addLine(xml, route);
    xml.open("Folder");
    xml.leaf("name", "Points");
    for (const RoutePoint& point : route.points) addMark(xml, point);
    return xml.take();
}

} // namespace gatewise::programs
