#pragma once

#include "plan/PlanTable.h"
#include "schedule/Records.h"

#include <array>
#include <cstdint>
#include <limits>
#include <span>
#include <string_view>

// How the flight's aircraft climbs, cruises and descends. The bands stand here once: the level search, the
// walk along the route, the elapsed times and the step points all fly by them.

namespace gatewise {

inline constexpr double kNoLimit = std::numeric_limits<double>::infinity();

/// A span of altitude flown at one speed and one rate.
struct ClimbBand {
    double limit;       // feet, where the band ends
    std::size_t speed;  // index in speedSchedule
    float rateAltitude; // feet, what effectiveClimbRate is asked for: never the altitude of the moment
};

inline constexpr std::array<ClimbBand, 5> kClimbBands = {{
    {10000, 0, 14999},
    {15000, 1, 14999},
    {25000, 1, 24999},
    {30000, 2, 29999},
    {kNoLimit, 2, 30000},
}};

struct DescentBand {
    double limit;          // feet, where the band ends on the way down
    std::size_t speed;     // index in speedSchedule of the flight itself
    std::size_t estimated; // the same of the level search; also what a step's last pass begins with
};

inline constexpr std::array<DescentBand, 3> kDescentBands = {{
    {25000, 4, 4},
    {10000, 5, 5},
    {-kNoLimit, 4, 6},
}};

inline constexpr std::size_t kCruiseSpeed = 3; // index in speedSchedule

/// Knots through the air at `altitude` feet of an aircraft that shows `speed` knots.
double trueAirspeed(double altitude, double speed);

/// Feet a minute that an aircraft of `rate` feet a minute makes good at `altitude`, in whole hundreds.
float effectiveClimbRate(const Plan& plan, float rate, float altitude);

/// The level for the plan's direction and rules that lies nearest to `altitude`.
std::int32_t legalAltitude(const Plan& plan, std::int32_t altitude);

/// Feet a minute of the descent, negative when the aircraft descends at all.
double descentStepRate(const Plan& plan);

/// Takes ceiling, rates and speeds from the first aircraft of the code, compared untrimmed. Without one the
/// plan keeps the numbers that it has.
void loadAircraftPerformance(Plan& plan, std::span<const AircraftRecord> aircraft, std::string_view code);

/// A number of feet or minutes without its fraction, held inside 32 bits.
std::int32_t wholePart(double value);

} // namespace gatewise
