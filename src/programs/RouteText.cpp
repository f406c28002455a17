#include "programs/Figures.h"
#include "programs/Formats.h"

#include <cmath>

// The route as item 15 of the flight plan form: cruising speed and level, then each point behind the airway
// that leads to it. The airports stand in other items. Every point is named, also along one airway, so that
// nothing of the plan is left to the reader's own data.

namespace gatewise::programs {

namespace {

/// A point that only our plan has a name for: degrees and minutes, "4620N07805W".
std::string item15Position(const RoutePoint& point) {
    const auto part = [](double degrees, int digits, char positive, char negative) {
        const long long minutes = std::llround(std::abs(degrees) * 60);
        return wholeFigure(minutes / 60, digits) + wholeFigure(minutes % 60, 2) +
               (degrees < 0 ? negative : positive);
    };
    return part(point.latitude, 2, 'N', 'S') + part(point.longitude, 3, 'E', 'W');
}

} // namespace

std::string routeText(const Route& route) {
    std::string out =
        "N" + wholeFigure(route.trueAirspeed, 4) + "F" + wholeFigure(route.cruiseAltitude / 100, 3);
    for (std::size_t i = 1; i + 1 < route.points.size(); ++i) {
        const RoutePoint& point = route.points[i];
        if (i > 1) out += " " + (point.airway.empty() ? "DCT" : point.airway);
        out += " " + (point.fix == Fix::User ? item15Position(point) : point.ident);
    }
    return out + (route.points.size() == 2 ? " DCT\n" : "\n");
}

} // namespace gatewise::programs
