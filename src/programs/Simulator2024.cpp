#include "programs/Figures.h"
#include "programs/Formats.h"
#include "programs/Microsoft.h"

// The plan that the tablet of MSFS 2024 loads: the airports stand in its head alone.

namespace gatewise::programs {

namespace {

/// The simulator looks a fix up by its region; where that is unknown, the position finds it.
void addTabletPoint(Xml& xml, const RoutePoint& point) {
    if (point.fix == Fix::User)
        xml.open("ATCWaypoint", {{"id", point.ident}});
    else
        xml.open("ATCWaypoint");
    addWaypointBody(xml, point);
    addIcao(xml, point);
    xml.close();
}

} // namespace

std::string msfs2024(const Route& route) {
    const std::string& from = route.from().ident;
    const std::string& to = route.to().ident;
    Xml xml;
    xml.open("SimBase.Document");
    xml.open("FlightPlan.FlightPlan");
    xml.leaf("DepartureID", from);
    xml.leaf("DestinationID", to);
    xml.leaf("Title", from + " to " + to);
    xml.leaf("Descr", from + ", " + to);
    xml.leaf("FPType", "IFR");
    xml.leaf("CruisingAlt", std::to_string(route.cruiseAltitude));
    xml.open("AppVersion");
    xml.leaf("AppVersionMajor", "12");
    xml.close();
    for (const RoutePoint& point : route.points) {
        if (point.fix != Fix::Airport) addTabletPoint(xml, point);
    }
    return xml.take();
}

} // namespace gatewise::programs
