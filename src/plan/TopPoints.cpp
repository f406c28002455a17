#include "plan/TopPoints.h"

#include "plan/Geometry.h"
#include "plan/Performance.h"
#include "platform/Numbers.h"

#include <cmath>

namespace gatewise {

namespace {

constexpr double kApart = 5; // miles that a top point keeps from its fix

double totalAt(const Plan& plan, int i) {
    return plan.at(i).pointTotalDistance;
}

struct TopPoint {
    std::string_view type;
    std::string_view name;
    std::string_view description;
};

constexpr TopPoint kTopOfClimb = {"TC", "*TOC*", "Top of Climb"};
constexpr TopPoint kTopOfDescent = {"TD", "*TOD*", "Top of Descent"};

/// Fills slot s, whose pointTotalDistance is set; `next` is the point that the leg leads to, `from` the one
/// its position is measured from, `start` the distance of that one.
bool fill(Plan& plan, int s, const TopPoint& top, const PlanPoint& next, const PlanPoint& from,
          double start) {
    PlanPoint& point = plan.at(s);
    point.pointType = top.type;
    point.pointId = top.name;
    point.pointName = top.name;
    point.pointFrequency = std::string_view("000.00");
    point.pointDescription = top.description;
    const double total = point.pointTotalDistance;
    const double share = total / static_cast<double>(next.pointTotalDistance) * next.pointMinutes;
    if (!std::isfinite(share)) return false;
    point.pointMinutes = wholePart(roundToEven(share));
    point.pointAltitude = plan.cruiseAltitude;
    point.pointHeading = next.pointHeading;
    point.pointAirway = next.pointAirway;
    return placeAt(point, from, next.pointHeading, wholePart(roundToEven(total - start)));
}

bool placeTopOfDescent(Plan& plan, int s, double distance) {
    float& total = plan.at(s).pointTotalDistance;
    const double next = totalAt(plan, s + 1);
    total = static_cast<float>(std::trunc(distance));
    if (next - static_cast<double>(total) < kApart) total = static_cast<float>(next - kApart);
    return fill(plan, s, kTopOfDescent, plan.at(s + 1), plan.at(s - 2), totalAt(plan, s - 2));
}

bool placeTopOfClimb(Plan& plan, int s, double distance) {
    float& total = plan.at(s).pointTotalDistance;
    const double before = totalAt(plan, s - 1);
    total = static_cast<float>(roundToEven(distance));
    if (static_cast<double>(total) - before < kApart) total = static_cast<float>(before + kApart);
    return fill(plan, s, kTopOfClimb, plan.at(s + 1), plan.at(s - 1), before);
}

/// The climb found no leg of its own: its top takes the departure's place in the table.
bool placeTopOfClimbFirst(Plan& plan, double distance) {
    float& total = plan.at(0).pointTotalDistance;
    const double next = totalAt(plan, 1);
    total = static_cast<float>(roundToEven(distance));
    if (next - static_cast<double>(total) < kApart) total = static_cast<float>(next - kApart);
    PlanPoint departure;
    departure.pointLatitude = plan.departureAirport.Latitude;
    departure.pointLongitude = plan.departureAirport.Longitude;
    return fill(plan, 0, kTopOfClimb, plan.at(1), departure, 0);
}

} // namespace

void movePoint(PlanPoint& to, const PlanPoint& from) {
    const float leg = to.pointLegDistance;
    to = from;
    to.pointLegDistance = leg;
}

bool placeAt(PlanPoint& point, const PlanPoint& from, float course, std::int32_t miles) {
    const double start = from.pointLatitude;
    const double latitude = offsetLatitude(miles, start, course);
    if (!std::isfinite(latitude)) return false;
    const float longitude = offsetLongitude(miles, start, from.pointLongitude, course, latitude);
    point.pointLatitude = static_cast<float>(latitude);
    if (!std::isfinite(longitude)) return false;
    point.pointLongitude = longitude;
    return true;
}

std::optional<int> insertTopPoints(Plan& plan, const LevelEstimate& estimate) {
    if (plan.planLast + 2 >= kPlanPoints) return std::nullopt;
    const double climb = estimate.climb;
    const double descent = totalAt(plan, plan.planLast) - estimate.descent;
    int last = plan.planLast;
    int needDescent = 1;
    int needClimb = 1;
    for (int s = last + 2; s >= 0; --s) {
        if (s >= 2 && s < last + 2 && needDescent == 1 && totalAt(plan, s - 2) < descent &&
            descent <= totalAt(plan, s + 1)) {
            if (!placeTopOfDescent(plan, s, descent)) return std::nullopt;
            needDescent = 0;
            ++last;
            --s;
        }
        if (s >= 1 && s < last + 1 && needDescent == 0 && needClimb == 1 && totalAt(plan, s - 1) < climb &&
            climb <= totalAt(plan, s + 1)) {
            if (!placeTopOfClimb(plan, s, climb)) return std::nullopt;
            needClimb = 0;
            ++last;
            --s;
        }
        const int source = s - needDescent - needClimb;
        if (source > 0) movePoint(plan.at(s), plan.at(source));
        if (s == 1 && needDescent == 0 && needClimb == 1) {
            if (!placeTopOfClimbFirst(plan, climb)) return std::nullopt;
            s = 0;
        }
    }
    return last;
}

} // namespace gatewise
