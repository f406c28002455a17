#include "programs/Figures.h"
#include "programs/Formats.h"
#include "programs/Microsoft.h"

// Plans of FSX, Prepar3D and MSFS 2020: one form, told apart by the version of the simulator that it names.
// Regions stand where our data knows them. Names of runways are left out: the plan chooses none.

namespace gatewise::programs {

namespace {

struct Version {
    const char* major;
    const char* build;
    int altitudePlaces; // behind the point of the cruising altitude
};

constexpr int kHighAltitude = 18000; // feet

const char* routeType(const Route& route) {
    if (route.points.size() == 2) return "Direct";
    return route.cruiseAltitude >= kHighAltitude ? "HighAlt" : "LowAlt";
}

void addHead(Xml& xml, const Route& route, const Version& version) {
    const RoutePoint& from = route.from();
    const RoutePoint& to = route.to();
    xml.leaf("Title", from.ident + " to " + to.ident);
    xml.leaf("FPType", "IFR");
    xml.leaf("RouteType", routeType(route));
    xml.leaf("CruisingAlt", fixedFigure(route.cruiseAltitude, version.altitudePlaces));
    xml.leaf("DepartureID", from.ident);
    xml.leaf("DepartureLLA", worldPosition(from));
    xml.leaf("DestinationID", to.ident);
    xml.leaf("DestinationLLA", worldPosition(to));
    xml.leaf("Descr", from.ident + ", " + to.ident);
    // One of these simulators ignores a plan with accents in it.
    xml.leaf("DepartureName", plainText(from.name));
    xml.leaf("DestinationName", plainText(to.name));
    xml.open("AppVersion");
    xml.leaf("AppVersionMajor", version.major);
    xml.leaf("AppVersionBuild", version.build);
    xml.close();
}

void addSimulatorPoint(Xml& xml, const RoutePoint& point) {
    xml.open("ATCWaypoint", {{"id", point.ident}});
    addWaypointBody(xml, point);
    if (point.fix != Fix::User) addIcao(xml, point);
    xml.close();
}

std::string plan(const Route& route, const Version& version) {
    Xml xml;
    xml.open("SimBase.Document", {{"Type", "AceXML"}, {"version", "1,0"}});
    xml.leaf("Descr", "AceXML Document");
    xml.open("FlightPlan.FlightPlan");
    addHead(xml, route, version);
    for (const RoutePoint& point : route.points) addSimulatorPoint(xml, point);
    return xml.take();
}

} // namespace

std::string flightSimulatorX(const Route& route) {
    return plan(route, {"10", "61472", 0});
}

std::string msfs2020(const Route& route) {
    return plan(route, {"11", "282174", 3});
}

} // namespace gatewise::programs
