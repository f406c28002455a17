#include "plan/Performance.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace gatewise {

double trueAirspeed(double altitude, double speed) {
    return speed * (1 + 0.01072 * altitude / 1000 + 0.000256 * altitude * altitude / 1000000);
}

float effectiveClimbRate(const Plan& plan, float rate, float altitude) {
    const double r = rate;
    const double divisor = plan.climbDivisor;
    // The lowest row adds its 99 feet before the division, the others behind it.
    double hundreds = 0;
    if (altitude < 15000)
        hundreds = (r + 99) / divisor / 100;
    else if (altitude < 25000)
        hundreds = (r * 0.83 / divisor + 99) / 100;
    else if (altitude < 30000)
        hundreds = (r * 0.67 / divisor + 99) / 100;
    else
        hundreds = (r * 0.5 / divisor + 99) / 100;
    return static_cast<float>(std::trunc(hundreds) * 100);
}

std::int32_t legalAltitude(const Plan& plan, std::int32_t altitude) {
    constexpr std::int64_t kHighLevels = 29000; // from here on levels of one direction lie 4,000 feet apart
    const std::int64_t a = altitude;
    const bool high = a >= kHighLevels;
    const bool visual = plan.flightRules == FixedText<3>("VFR");
    const std::int64_t step = high ? 2000 : 1000;
    std::int64_t offset = high ? 1000 : 0;
    if (visual) offset = 500;
    const bool eastbound = plan.directCourse >= 0;
    const std::int64_t shift = high != eastbound ? -step : 0;

    const std::int64_t base = (a + 1000) / (2 * step) * 2 * step + offset;
    const std::int64_t c1 = base - shift;
    const std::int64_t c2 = base + shift;
    std::int64_t result = std::abs(c2 - a) < std::abs(c1 - a) ? c2 : c1;
    if (result < 1) result += 2000;
    if (visual && result > 18000) result -= 2000;
    return static_cast<std::int32_t>(std::clamp<std::int64_t>(
        result, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()));
}

double descentStepRate(const Plan& plan) {
    return static_cast<double>(plan.descentRate) / static_cast<double>(plan.descentDivisor);
}

void loadAircraftPerformance(Plan& plan, std::span<const AircraftRecord> aircraft, std::string_view code) {
    const auto found =
        std::ranges::find_if(aircraft, [&](const AircraftRecord& a) { return a.Code.view() == code; });
    if (found == aircraft.end()) return;
    plan.ceilingAltitude = found->CruiseAltitude;
    plan.climbRate = found->ClimbRate;
    plan.descentRate = static_cast<float>(found->DescentRate > 0 ? -found->DescentRate : found->DescentRate);
    const double cruise = found->CruiseSpeedTAS;
    const double low = std::min(0.8 * cruise, 240.0);
    plan.speedSchedule = {low, 0.9 * cruise, 0.95 * cruise, cruise, 0.95 * cruise, 0.9 * cruise, low};
}

std::int32_t wholePart(double value) {
    constexpr std::int32_t low = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t high = std::numeric_limits<std::int32_t>::max();
    if (std::isnan(value)) return 0;
    if (value <= low) return low;
    if (value >= high) return high;
    return static_cast<std::int32_t>(value);
}

} // namespace gatewise
