#include "plan/Editing.h"

#include "plan/Build.h"

namespace gatewise {

namespace {

/// Closes the slot; all that a build computes anew stays where it is.
void removePoint(Plan& plan, int i) {
    for (int j = i; j < plan.planLast; ++j) {
        PlanPoint& to = plan.at(j);
        const PlanPoint& from = plan.at(j + 1);
        to.pointName = from.pointName;
        to.pointId = from.pointId;
        to.pointFrequency = from.pointFrequency;
        to.pointLatitude = from.pointLatitude;
        to.pointLongitude = from.pointLongitude;
        to.pointDescription = from.pointDescription;
        to.pointAirway = from.pointAirway;
        to.pointType = from.pointType;
    }
    --plan.planLast;
}

void takeAltitude(Plan& plan, std::int32_t altitude) {
    plan.peakAltitude = altitude;
    plan.ceilingAltitude = altitude;
}

void rebuild(Plan& plan, const PlanInput& input) {
    removeComputedPoints(plan);
    buildPlan(plan, input);
    loadAirportFacilities(plan, input);
}

} // namespace

void removeComputedPoints(Plan& plan) {
    // At least the destination stays, whatever a failed build has left in its slot.
    for (int i = 0; i <= plan.planLast && plan.planLast > 0;) {
        if (plan.at(i).computed())
            removePoint(plan, i);
        else
            ++i;
    }
}

void recalculatePlan(Plan& plan, const PlanInput& input, std::int32_t altitude) {
    takeAltitude(plan, altitude);
    rebuild(plan, input);
}

Removal removePlanPoint(Plan& plan, const PlanInput& input, int row, std::int32_t altitude) {
    const int i = row - 1;
    if (i < 0 || i > plan.planLast) return Removal::Nothing;
    takeAltitude(plan, altitude);
    if (i == plan.planLast || i == 0) return Removal::AirportRefused;
    if (plan.at(i).computed()) return Removal::ComputedRefused;
    removePoint(plan, i);
    rebuild(plan, input);
    return Removal::Done;
}

} // namespace gatewise
