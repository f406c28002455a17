#include "programs/Microsoft.h"

#include "programs/Figures.h"

#include <cmath>

namespace gatewise::programs {

namespace {

constexpr const char* kSimulatorTypes[] = {"Airport", "VOR", "NDB", "Intersection", "User"};

std::string angle(double degrees, char positive, char negative) {
    const long long hundredths = std::llround(std::abs(degrees) * 360000);
    const long long seconds = hundredths / 100;
    return std::string(1, degrees < 0 ? negative : positive) + std::to_string(seconds / 3600) + "\xB0 " +
           std::to_string(seconds / 60 % 60) + "' " + std::to_string(seconds % 60) + "." +
           wholeFigure(hundredths % 100, 2) + "\"";
}

} // namespace

std::string worldPosition(const RoutePoint& point) {
    return angle(point.latitude, 'N', 'S') + "," + angle(point.longitude, 'E', 'W') + "," +
           (point.altitude < 0 ? "-" : "+") + wholeFigure(std::abs(point.altitude), 6) + ".00";
}

const char* waypointType(const RoutePoint& point) {
    return kSimulatorTypes[static_cast<int>(point.fix)];
}

void addIcao(Xml& xml, const RoutePoint& point) {
    xml.open("ICAO");
    if (!point.region.empty()) xml.leaf("ICAORegion", point.region);
    xml.leaf("ICAOIdent", point.ident);
    xml.close();
}

void addWaypointBody(Xml& xml, const RoutePoint& point) {
    xml.leaf("ATCWaypointType", waypointType(point));
    xml.leaf("WorldPosition", worldPosition(point));
    if (!point.airway.empty()) xml.leaf("ATCAirway", point.airway);
}

} // namespace gatewise::programs
