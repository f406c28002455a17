#include "export/ExportSB.h"

#include "plan/Performance.h"
#include "platform/Text.h"

#include <array>

namespace gatewise {

namespace {

constexpr std::int32_t kLow = 10000;    // feet, last of the lowest band
constexpr std::int32_t kMiddle = 25000; // last of the middle band

double headerAirspeed(const Plan& plan) {
    const std::size_t entry = plan.peakAltitude > kMiddle ? 3 : plan.peakAltitude > kLow ? 1 : 0;
    return trueAirspeed(plan.peakAltitude, plan.speedSchedule[entry]);
}

/// Entries of the speed schedule by altitude band.
using Phase = std::array<std::size_t, 3>;
constexpr Phase kCruise = {0, 1, 3};
constexpr Phase kDescent = {6, 5, 4};
constexpr Phase kClimb = {0, 1, 2};

/// Rows of the top points, 0 where the plan has none: so a plan without a top of descent descends all the
/// way.
struct Tops {
    int climb = 0;
    int descent = 0;
};

Tops topsOf(const Plan& plan) {
    Tops tops;
    forEnRoute(plan, [&](int i, const PlanPoint& point) {
        const PointKind kind = point.kind();
        if (kind == PointKind::TopOfClimb) tops.climb = i;
        if (kind == PointKind::TopOfDescent) tops.descent = i;
    });
    return tops;
}

double phaseSpeed(const Plan& plan, int row, const Tops& tops) {
    const bool cruise = row >= tops.climb && row <= tops.descent;
    const Phase& phase = cruise ? kCruise : row > tops.descent ? kDescent : kClimb;
    const std::int32_t altitude = plan.at(row).pointAltitude;
    return plan.speedSchedule[phase[altitude <= kLow ? 0 : altitude <= kMiddle ? 1 : 2]];
}

/// Empty for points that write no line.
std::string_view prefixOf(const PlanPoint& point) {
    switch (point.kind()) {
    case PointKind::Vor:
        return "V";
    case PointKind::Ndb:
        return "N";
    case PointKind::Intersection:
        return "I";
    case PointKind::TopOfClimb:
    case PointKind::TopOfDescent:
        return "X";
    default:
        return {};
    }
}

} // namespace

std::string squawkBoxPlan(const Plan& plan, const MagneticTable& magnetic, const NumberLocale& numbers) {
    TextLines out;
    out.add({plan.departureAirport.Icao.trimmed(), ":", plan.destinationAirport.Icao.trimmed(), ":",
             filedNumber(numbers, "####0", headerAirspeed(plan))});
    const Tops tops = topsOf(plan);
    forEnRoute(plan, [&](int i, const PlanPoint& point) {
        const std::string_view prefix = prefixOf(point);
        if (prefix.empty()) return;
        // Step points write no line, but the row before climbs or descends to them all the same.
        const std::int32_t next =
            i + 1 < plan.planLast ? plan.at(i + 1).pointAltitude : plan.destinationAirport.Elevation;
        const float course =
            magnetic.magneticHeading(point.pointLatitude, point.pointLongitude, plan.at(i + 1).pointHeading);
        out.add({prefix, ":", point.pointName.trimmed(), ":",
                 filedSingle(numbers, "#0.000000", point.pointLatitude), ":",
                 filedSingle(numbers, "#0.000000", point.pointLongitude), ":",
                 filedNumber(numbers, "####0", phaseSpeed(plan, i, tops)), ":",
                 formatInteger("00000", point.pointAltitude), ":", formatInteger("00000", next), ":",
                 filedSingle(numbers, "000", course)});
    });
    return out.text();
}

} // namespace gatewise
