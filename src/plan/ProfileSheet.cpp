#include "plan/ProfileSheet.h"

#include <cmath>

namespace gatewise {

Tone pointTone(const Plan& plan, int i) {
    if (i == 0 || i == plan.planLast) return Tone::Airport;
    switch (plan.at(i).kind()) {
    case PointKind::TopOfClimb:
    case PointKind::TopOfDescent:
        return Tone::Top;
    case PointKind::StepClimb:
    case PointKind::StepDescent:
        return Tone::Step;
    default:
        return Tone::Fix;
    }
}

bool isDrawable(const Plan& plan) {
    if (plan.planLast < 1 || !(plan.totalDistance > 0)) return false;
    for (int i = 0; i <= plan.planLast; ++i) {
        const PlanPoint& p = plan.at(i);
        if (!std::isfinite(p.pointLatitude) || !std::isfinite(p.pointLongitude)) return false;
        if (std::fabs(p.pointLatitude) > 90) return false;
    }
    return true;
}

double altitudeAt(const Plan& plan, int i) {
    if (i == 0) return plan.departureAirport.Elevation;
    if (i == plan.planLast) return plan.destinationAirport.Elevation;
    return plan.at(i).pointAltitude;
}

} // namespace gatewise
