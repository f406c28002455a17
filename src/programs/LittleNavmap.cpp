#include "programs/Cycle.h"
#include "programs/Figures.h"
#include "programs/Formats.h"
#include "programs/Xml.h"

namespace gatewise::programs {

namespace {

constexpr const char* kNavmapTypes[] = {"AIRPORT", "VOR", "NDB", "WAYPOINT", "USER"};

void addHeader(Xml& xml, const Route& route) {
    std::string created = isoTime(route.written);
    created.replace(created.size() - 1, 1, "+00:00");
    xml.open("Header");
    xml.leaf("FlightplanType", "IFR");
    xml.leaf("CruisingAlt", std::to_string(route.cruiseAltitude));
    xml.leaf("CruisingAltF", fixedFigure(route.cruiseAltitude, 8));
    xml.leaf("Comment", route.flight);
    xml.leaf("CreationDate", created);
    xml.leaf("FileVersion", "1.2");
    xml.leaf("ProgramName", "Gatewise Terminal");
    xml.close();
}

/// Elements that would be empty are left out.
void addNavmapPoint(Xml& xml, const RoutePoint& point) {
    xml.open("Waypoint");
    if (!point.name.empty()) xml.leaf("Name", point.name);
    xml.leaf("Ident", point.ident);
    if (!point.region.empty()) xml.leaf("Region", point.region);
    if (!point.airway.empty()) xml.leaf("Airway", point.airway);
    xml.leaf("Type", kNavmapTypes[static_cast<int>(point.fix)]);
    xml.empty("Pos", {{"Lon", fixedFigure(point.longitude, 6)},
                      {"Lat", fixedFigure(point.latitude, 6)},
                      {"Alt", fixedFigure(point.altitude, 2)}});
    xml.close();
}

} // namespace

/// A plan of Little Navmap, file version 1.2. The data is of no simulator that it knows and says so.
std::string littleNavmap(const Route& route) {
    Xml xml;
    xml.open("LittleNavmap",
             {{"xmlns:xsi", "http://www.w3.org/2001/XMLSchema-instance"},
              {"xsi:noNamespaceSchemaLocation", "https://www.littlenavmap.org/schema/lnmpln.xsd"}});
    xml.open("Flightplan");
    addHeader(xml, route);
    xml.leaf("SimData", "FS2002");
    xml.leaf("NavData", "GATEWISE");
    xml.open("Waypoints");
    for (const RoutePoint& point : route.points) addNavmapPoint(xml, point);
    return xml.take();
}

} // namespace gatewise::programs
