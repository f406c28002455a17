#include "plan/Level.h"

#include "plan/FlightSteps.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace gatewise {

namespace {

constexpr double kDescentStart = 5.0; // miles of the approach, before any height is counted
constexpr double kLowestFeet = std::numeric_limits<std::int32_t>::min();

/// One level search. A try is over once it is longer than what any level may take: the level is lost then,
/// however the try would end.
struct Search {
    Plan& plan;
    double allowed; // miles for climb and descent together
    FlightSteps steps{0, 0};
    bool forward = std::ranges::all_of(plan.speedSchedule, [](double speed) { return speed > 0; });

    [[nodiscard]] bool tooLong() const { return forward && steps.distance > allowed; }

    /// Flies one band upward to `limit`; false when the rate never leads there.
    bool band(double rate, std::size_t speed, double limit) {
        const auto goesOn = [&] { return steps.altitude <= limit && !tooLong(); };
        if (goesOn() && !(rate > 0)) return false;
        return steps.fly(rate, plan.speedSchedule[speed], goesOn);
    }

    bool climb(double top) {
        steps.restart(plan.departureAirport.Elevation, 0);
        return std::ranges::all_of(kClimbBands, [&](const ClimbBand& b) {
            return band(effectiveClimbRate(plan, plan.climbRate, b.rateAltitude), b.speed,
                        std::min(b.limit, top));
        });
    }

    /// The descent backward in time, from the ground up.
    bool descent(double top) {
        steps.restart(plan.destinationAirport.Elevation, kDescentStart);
        if (steps.altitude <= top && !(descentStepRate(plan) < 0)) return false;
        for (std::size_t i = kDescentBands.size(); i-- > 0;) {
            const double limit = i > 0 ? std::min(kDescentBands[i - 1].limit, top) : top;
            if (!band(-descentStepRate(plan), kDescentBands[i].estimated, limit)) return false;
        }
        return true;
    }
};

/// Below both airports nothing is flown any more, and 5 miles of descent are too much for a very short route
/// at every level. The search would sink to the lowest level that 32 bits hold; this is that level.
double lowestLevel(double thousands) {
    return thousands - 2 * std::floor((thousands * 1000 - kLowestFeet) / 2000);
}

} // namespace

bool chooseLevel(Plan& plan, LevelEstimate& estimate) {
    const double allowed = 0.8 * static_cast<double>(plan.at(plan.planLast).pointTotalDistance);
    const std::int32_t ground = std::min(plan.departureAirport.Elevation, plan.destinationAirport.Elevation);
    Search search{plan, allowed};
    auto level = static_cast<float>(legalAltitude(plan, plan.ceilingAltitude) / 1000.0);
    for (;;) {
        const double thousands = level;
        const double top = thousands * 1000;
        if (top < kLowestFeet) return false;
        if (!search.climb(top)) return false;
        estimate.climb = search.steps.distance;
        if (!search.descent(top)) return false;
        estimate.descent = search.steps.distance;
        plan.cruiseAltitude = legalAltitude(plan, wholePart(top));
        plan.peakAltitude = 0;
        if (!(estimate.climb + estimate.descent > allowed)) return true;
        if (top < ground && thousands <= 29 && kDescentStart > allowed) {
            plan.cruiseAltitude = legalAltitude(plan, wholePart(lowestLevel(thousands) * 1000));
            return false;
        }
        level -= level <= 29 ? 2.0F : 4.0F;
    }
}

} // namespace gatewise
