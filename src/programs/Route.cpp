#include "programs/Route.h"

#include "plan/Performance.h"
#include "programs/Figures.h"
#include "programs/Idents.h"

#include <algorithm>
#include <cmath>
#include <set>

namespace gatewise::programs {

namespace {

constexpr int kLowest = -9999; // feet: every format has room for what lies between
constexpr int kHighest = 99900;
constexpr int kLongest = 9999; // minutes
constexpr std::size_t kLongestIdent = 5;

struct FixRow {
    std::string_view pointType;
    Fix fix;
};

constexpr FixRow kFixes[] = {{"V ", Fix::Vor}, {"HV", Fix::Vor},          {"N ", Fix::Ndb},
                             {"HN", Fix::Ndb}, {"I ", Fix::Intersection}, {"HI", Fix::Intersection}};

Fix fixOf(const PlanPoint& point) {
    for (const auto& row : kFixes) {
        if (point.pointType.view() == row.pointType) return row.fix;
    }
    return Fix::User;
}

bool onEarth(float latitude, float longitude) {
    return std::abs(latitude) <= 90 && std::abs(longitude) <= 180; // false for what is no number
}

int feet(std::int32_t altitude) {
    return std::clamp(altitude, kLowest, kHighest);
}

RoutePoint airportPoint(const PlanAirport& airport) {
    RoutePoint point;
    point.fix = Fix::Airport;
    point.ident = codeText(airport.Icao.view(), 4);
    if (point.ident.empty()) point.ident = "ZZZZ"; // the code of what has none
    point.name = lineText(airport.Name.view());
    point.altitude = feet(airport.Elevation);
    if (!onEarth(airport.Latitude, airport.Longitude)) return point;
    point.latitude = decimalOf(airport.Latitude);
    point.longitude = decimalOf(airport.Longitude);
    return point;
}

RoutePoint enRoutePoint(const PlanPoint& from) {
    RoutePoint point;
    point.fix = fixOf(from);
    point.computed = from.computed();
    point.high = from.pointType.view().starts_with('H');
    point.ident = codeText(from.pointName.view(), kLongestIdent);
    point.name = lineText(from.pointDescription.view());
    point.latitude = decimalOf(from.pointLatitude);
    point.longitude = decimalOf(from.pointLongitude);
    point.altitude = feet(from.pointAltitude);
    return point;
}

/// The airways of the filed points. The way to the first and that to the destination are none.
class Airways {
public:
    void add(std::string_view airway) { names_.emplace_back(airway); }

    /// Of the filed point `i`, from 0.
    [[nodiscard]] std::string of(std::size_t i) const {
        if (i == 0) return {};
        return oneAirway(names_[i], i + 1 < names_.size() ? names_[i + 1] : std::string());
    }

private:
    std::vector<std::string> names_;
};

void setAirways(std::vector<RoutePoint>& points, const Airways& airways) {
    std::size_t filed = 0;
    for (RoutePoint& point : points) {
        if (point.fix != Fix::Airport && !point.computed) point.airway = airways.of(filed++);
    }
}

/// VOR, NDB or fix, as the regions tell them apart; a blank for what has none.
char regionKind(Fix fix) {
    constexpr std::string_view kKinds = " VNI "; // by Fix
    return kKinds[static_cast<std::size_t>(fix)];
}

/// What became a point of the user's has lost its place in the world's tables, and its region with it.
void setRegions(std::vector<RoutePoint>& points, const Regions& regions) {
    for (RoutePoint& point : points) {
        if (regionKind(point.fix) == ' ') continue;
        point.region = regions.find(regionKind(point.fix), point.ident, point.latitude, point.longitude);
    }
}

/// The top of climb may have taken the departure's place in the table, the airports are those of the blocks.
std::vector<RoutePoint> pointsOf(const Plan& plan, bool withComputed, const Regions& regions) {
    std::vector<RoutePoint> points{airportPoint(plan.departureAirport)};
    Airways airways;
    for (int i = 0; i < plan.planLast && i < kPlanPoints; ++i) {
        const PlanPoint& point = plan.at(i);
        const bool wanted = point.computed() ? withComputed : i > 0;
        if (!wanted || !onEarth(point.pointLatitude, point.pointLongitude)) continue;
        points.push_back(enRoutePoint(point));
        if (!point.computed()) airways.add(point.pointAirway.trimmed());
    }
    points.push_back(airportPoint(plan.destinationAirport));
    setAirways(points, airways);
    nameApart(points);
    setRegions(points, regions);
    return points;
}

int knots(const Plan& plan) {
    const double speed = trueAirspeed(plan.peakAltitude, plan.speedSchedule[kCruiseSpeed]);
    return std::isfinite(speed) ? static_cast<int>(std::lround(std::clamp(speed, 0.0, 9999.0))) : 0;
}

} // namespace

std::string oneAirway(std::string_view airway, std::string_view next) {
    const auto parts = [](std::string_view joined) {
        std::vector<std::string> names;
        while (!joined.empty()) {
            const std::size_t end = std::min(joined.find('-'), joined.size());
            if (auto name = codeText(joined.substr(0, end), 7); !name.empty()) names.push_back(name);
            joined.remove_prefix(std::min(end + 1, joined.size()));
        }
        return names;
    };
    const auto names = parts(airway);
    const auto after = parts(next);
    for (const auto& name : names) {
        if (std::ranges::find(after, name) != after.end()) return name;
    }
    return names.empty() ? std::string() : names.front();
}

Regions regionsOf(const Plan& plan, std::string_view text) {
    std::set<std::string, std::less<>> idents;
    for (int i = 1; i < plan.planLast && i < kPlanPoints; ++i)
        idents.insert(codeText(plan.at(i).pointName.view(), kLongestIdent));
    return regionsIn(text, {}, [&](std::string_view ident) { return idents.contains(ident); });
}

Route routeOf(const Plan& plan, std::string_view stem, const DateTime& utc, bool withComputed,
              const Regions& regions) {
    Route route;
    route.points = pointsOf(plan, withComputed, regions);
    route.flight = lineText(stem);
    route.cruiseAltitude = std::clamp(plan.peakAltitude, 0, kHighest);
    route.trueAirspeed = knots(plan);
    const int last = std::clamp<int>(plan.planLast, 0, kPlanPoints - 1);
    route.minutes = std::clamp(plan.at(last).pointMinutes, 0, kLongest);
    route.written = utc;
    return route;
}

} // namespace gatewise::programs
