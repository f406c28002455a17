#include "plan/StepPoints.h"

#include "plan/FlightSteps.h"
#include "plan/TopPoints.h"
#include "platform/Numbers.h"

#include <algorithm>
#include <limits>
#include <optional>

namespace gatewise {

namespace {

struct StepCall {
    StepDirection direction;
    std::int32_t target;
};

struct StepRule {
    std::int32_t above; // cruise levels above this
    std::int32_t upTo;  // and up to this
    int count;
    std::array<StepCall, 5> calls;
};

constexpr auto kUp = StepDirection::Climb;
constexpr auto kDown = StepDirection::Descent;

constexpr std::array<StepRule, 4> kStepRules = {{
    {35000,
     std::numeric_limits<std::int32_t>::max(),
     5,
     {{{kUp, 20000}, {kUp, 30000}, {kDown, 35000}, {kDown, 27000}, {kDown, 0}}}},
    {34999, 35000, 5, {{{kUp, 0}, {kUp, 20000}, {kUp, 30000}, {kDown, 27000}, {kDown, 0}}}},
    {27000, 33000, 4, {{{kUp, 0}, {kUp, 20000}, {kDown, 27000}, {kDown, 0}}}},
    {23000, 27000, 2, {{{kUp, 0}, {kUp, 20000}}}},
}};

/// The altitude of a step: the level beyond its target, or the next fix's when that comes first.
std::int32_t stepAltitude(std::int32_t target, std::int32_t next) {
    switch (target) {
    case 20000:
        return std::min(next, 23000);
    case 30000:
        return std::min(next, 33000);
    case 35000:
        return std::max(next, 35000);
    case 27000:
        return std::max(next, 24000);
    default:
        return target;
    }
}

/// Miles of the climb from `altitude` until the target is passed.
std::optional<double> climbMiles(const Plan& plan, std::int32_t target, double altitude) {
    const bool high = target == 30000;
    const double top = high ? 30000 : 20000;
    const std::size_t last = high ? 3 : 2;
    // A fix right at the end of a band begins the next one; above the fourth there is nothing to climb to.
    const auto above =
        std::ranges::find_if(kClimbBands, [&](const ClimbBand& b) { return altitude < b.limit; });
    const auto first = std::min<std::size_t>(static_cast<std::size_t>(above - kClimbBands.begin()), 3);
    FlightSteps steps(altitude, 0);
    for (std::size_t i = first; i <= last; ++i) {
        const ClimbBand& band = kClimbBands[i];
        const double limit = std::min(band.limit, top);
        const double rate = effectiveClimbRate(plan, plan.climbRate, band.rateAltitude);
        const bool free = target != 20000 && target != 30000;
        const auto goesOn = [&] { return steps.altitude <= limit && (!free || steps.altitude <= target); };
        if (goesOn() && !(rate > 0)) return std::nullopt;
        if (!steps.fly(rate, plan.speedSchedule[band.speed], goesOn)) return std::nullopt;
    }
    return steps.distance;
}

/// Miles of the descent from `altitude` until the target is passed.
std::optional<double> descentMiles(const Plan& plan, std::int32_t target, double altitude) {
    const double rate = descentStepRate(plan);
    FlightSteps steps(altitude, 0);
    const auto fly = [&](std::size_t speed, std::size_t entry, auto goesOn) {
        if (goesOn() && !(rate < 0)) return false;
        return steps.fly(rate, plan.speedSchedule[speed], plan.speedSchedule[entry], goesOn);
    };
    // From high up the two targets that lie above the first limit are flown to in one go.
    if ((target == 35000 && altitude > 30000) || (target == 27000 && altitude > 25000)) {
        const std::size_t speed = kDescentBands[0].speed;
        if (!fly(speed, speed, [&] { return steps.altitude >= target; })) return std::nullopt;
        return steps.distance;
    }
    for (const DescentBand& band : kDescentBands) {
        const auto goesOn = [&] { return steps.altitude > band.limit && steps.altitude > target; };
        if (!fly(band.speed, band.estimated, goesOn)) return std::nullopt;
    }
    return steps.distance;
}

bool stepPass(Plan& plan, std::int32_t target, StepDirection direction) {
    bool cruiseSeen = false;
    const int limit = plan.planLast - 1;
    for (int i = 0; i <= limit; ++i) {
        const std::int32_t here = plan.at(i).pointAltitude;
        const std::int32_t next = plan.at(i + 1).pointAltitude;
        if (here == plan.cruiseAltitude) cruiseSeen = true;
        if (here == target && cruiseSeen == (direction == kDown)) return true;
        const bool crossed =
            direction == kUp ? next > target && here < target : next < target && here > target;
        if (!crossed) continue;
        if (plan.planLast + 1 >= kPlanPoints) return false;
        for (int j = plan.planLast; j > i; --j) movePoint(plan.at(j + 1), plan.at(j));
        ++plan.planLast;
        if (!placeStepPoint(plan, target, i, direction)) return false;
    }
    return true;
}

} // namespace

bool placeStepPoint(Plan& plan, std::int32_t target, int i, StepDirection direction) {
    const PlanPoint& from = plan.at(i);
    PlanPoint& step = plan.at(i + 1);
    const PlanPoint& next = plan.at(i + 2);
    const double altitude = from.pointAltitude;
    const auto miles =
        direction == kUp ? climbMiles(plan, target, altitude) : descentMiles(plan, target, altitude);
    if (!miles || !placeAt(step, from, next.pointHeading, wholePart(roundToEven(*miles)))) return false;
    step.pointAltitude = stepAltitude(target, next.pointAltitude);
    step.pointHeading = next.pointHeading;
    step.pointAirway = next.pointAirway;
    const std::string_view name = direction == kUp ? "STEPC" : "STEPD";
    step.pointType = std::string_view(direction == kUp ? "SU" : "SD");
    step.pointId = name;
    step.pointName = name;
    step.pointDescription = std::string_view(direction == kUp ? "Step Climb Point" : "Step Descent Point");
    return true;
}

bool stepClimbAt(Plan& plan, std::int32_t target) {
    return stepPass(plan, target, kUp);
}

bool stepDescentAt(Plan& plan, std::int32_t target) {
    return stepPass(plan, target, kDown);
}

bool insertStepPoints(Plan& plan) {
    const std::int32_t level = plan.cruiseAltitude;
    const auto rule = std::ranges::find_if(
        kStepRules, [&](const StepRule& r) { return level > r.above && level <= r.upTo; });
    if (rule == kStepRules.end()) return true;
    return std::all_of(rule->calls.begin(), rule->calls.begin() + rule->count,
                       [&](const StepCall& call) { return stepPass(plan, call.target, call.direction); });
}

} // namespace gatewise
