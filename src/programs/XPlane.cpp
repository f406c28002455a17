#include "programs/Cycle.h"
#include "programs/Figures.h"
#include "programs/Formats.h"

// A flight plan of X-Plane 11 and 12, version 1100: a line a point with six fields, one blank between them.

namespace gatewise::programs {

namespace {

/// By Fix: airport, VOR, NDB, named fix, a position without a name in the program's data.
constexpr const char* kXPlaneTypes[] = {"1", "3", "2", "11", "28"};

/// An airway holds only between two points that lie on it, and a user point lies on none.
std::string via(const RoutePoint& point, const RoutePoint& before) {
    const bool airway = !point.airway.empty() && point.fix != Fix::User && before.fix != Fix::User;
    return airway ? point.airway : "DRCT";
}

std::string line(const RoutePoint& point, const std::string& via) {
    return std::string(kXPlaneTypes[static_cast<int>(point.fix)]) + " " + point.ident + " " + via + " " +
           fixedFigure(point.altitude, 6) + " " + fixedFigure(point.latitude, 6) + " " +
           fixedFigure(point.longitude, 6) + "\n";
}

} // namespace

std::string xPlane(const Route& route) {
    const auto& points = route.points;
    std::string out = "I\n1100 Version\nCYCLE " + cycleOf(route.written) + "\n";
    out += "ADEP " + route.from().ident + "\nADES " + route.to().ident + "\n";
    out += "NUMENR " + std::to_string(points.size()) + "\n";
    out += line(route.from(), "ADEP");
    for (std::size_t i = 1; i + 1 < points.size(); ++i) out += line(points[i], via(points[i], points[i - 1]));
    return out + line(route.to(), "ADES");
}

} // namespace gatewise::programs
