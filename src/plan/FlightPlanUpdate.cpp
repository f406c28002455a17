#include "plan/FlightPlanUpdate.h"

#include "plan/FlightSteps.h"
#include "plan/Level.h"
#include "plan/TopPoints.h"

#include <array>
#include <cmath>
#include <optional>

namespace gatewise {

namespace {

/// How a climb band ends at a point. The rows of one phase are flown one after the other.
struct ClimbRow {
    int phase;
    std::size_t band;      // in kClimbBands
    bool limitEndsPhase;   // altitude above the band's limit
    bool cruiseSetsCruise; // cruise reached: the altitude becomes cruiseAltitude
    bool onlyInOwnPhase;   // the top of climb counts only while the phase has not moved on
};

constexpr std::array<ClimbRow, 5> kClimbRows = {{
    {0, 0, true, true, false},
    {1, 1, false, false, false},
    {1, 2, true, true, true},
    {2, 3, false, true, false},
    {2, 4, false, true, true},
}};

constexpr int kCruisePhase = 3;
constexpr int kFirstDescentPhase = 4;
constexpr int kGroundPhase = 6;

enum class DescentMark { Type, Name }; // by what the cruise knows the top of descent

/// The flight along the table, point by point.
class Walk {
public:
    Walk(const Plan& plan, DescentMark mark)
        : plan_(plan), mark_(mark), steps_(plan.departureAirport.Elevation, 0) {}

    struct Passing {
        std::int32_t altitude; // before it is made a level
        std::int32_t minutes;
    };

    /// Flies the leg that ends at point i; nothing on a failure.
    std::optional<Passing> leg(int i) {
        const PlanPoint& point = plan_.at(i);
        leg_ = static_cast<double>(point.pointTotalDistance);
        if (i > 0) leg_ -= static_cast<double>(plan_.at(i - 1).pointTotalDistance);
        steps_.distance = 0;
        passed_ = point.pointAltitude;
        const bool flown = climb(point.pointName.view() == "*TOC*") && descend() && cruise(i);
        if (!flown || !std::isfinite(steps_.minutes)) return std::nullopt;
        return Passing{passed_, wholePart(steps_.minutes)};
    }

private:
    bool climb(bool topOfClimb) {
        for (std::size_t row = 0; row < kClimbRows.size();) {
            const int block = kClimbRows[row].phase;
            const bool runs = phase_ == block;
            for (; row < kClimbRows.size() && kClimbRows[row].phase == block; ++row) {
                if (runs && !climbBand(kClimbRows[row], topOfClimb)) return false;
            }
        }
        return true;
    }

    bool climbBand(const ClimbRow& row, bool topOfClimb) {
        const ClimbBand& band = kClimbBands[row.band];
        const double rate = effectiveClimbRate(plan_, plan_.climbRate, band.rateAltitude);
        const double cruise = plan_.cruiseAltitude;
        const bool flown = steps_.fly(rate, plan_.speedSchedule[band.speed], [&] {
            return steps_.altitude <= band.limit && steps_.altitude < cruise && steps_.distance < leg_;
        });
        if (!flown) return false;

        const bool top = topOfClimb && (!row.onlyInOwnPhase || phase_ == row.phase);
        if (steps_.altitude > band.limit) {
            passed_ = wholePart(band.limit);
            if (row.limitEndsPhase) ++phase_;
        } else if (steps_.altitude > cruise || top) {
            passed_ = plan_.cruiseAltitude;
            if (row.cruiseSetsCruise) steps_.altitude = cruise;
            ++phase_;
        } else {
            passed_ = wholePart(steps_.altitude);
        }
        return true;
    }

    bool descend() {
        for (int block = kFirstDescentPhase; block <= kGroundPhase; ++block) {
            if (phase_ == block && !descendBand(block)) return false;
        }
        return true;
    }

    bool descendBand(int block) {
        const DescentBand& band = kDescentBands[static_cast<std::size_t>(block - kFirstDescentPhase)];
        const double ground = plan_.destinationAirport.Elevation;
        const double limit = block == kGroundPhase ? ground : band.limit;
        const bool flown = steps_.fly(descentStepRate(plan_), plan_.speedSchedule[band.speed],
                                      [&] { return steps_.altitude > limit && steps_.distance < leg_; });
        if (!flown) return false;

        // The last block is over only far below the ground, so that the destination keeps its altitude.
        const double over = block == kGroundPhase ? ground - 2000 : limit;
        if (steps_.altitude <= over) {
            passed_ = wholePart(over);
            ++phase_;
        } else {
            passed_ = wholePart(steps_.altitude);
        }
        return true;
    }

    /// The whole leg counts, even where part of it was climbed already.
    bool cruise(int i) {
        if (phase_ != kCruisePhase) return true;
        const double speed = plan_.speedSchedule[kCruiseSpeed];
        const double before = i > 0 ? plan_.at(i - 1).pointAltitude : steps_.altitude;
        const double a = trueAirspeed(plan_.cruiseAltitude, speed);
        const double b = trueAirspeed(before, speed);
        passed_ = plan_.cruiseAltitude;
        steps_.altitude = plan_.cruiseAltitude;
        steps_.minutes += leg_ * 60 / ((a + b) / 2);
        const PlanPoint& point = plan_.at(i);
        const bool top = mark_ == DescentMark::Type ? point.kind() == PointKind::TopOfDescent
                                                    : point.pointName.view() == "*TOD*";
        if (top) phase_ = plan_.cruiseAltitude > 25000 ? 4 : plan_.cruiseAltitude > 10000 ? 5 : 6;
        return true;
    }

    const Plan& plan_;
    DescentMark mark_;
    FlightSteps steps_;
    int phase_ = 0;
    double leg_ = 0;
    std::int32_t passed_ = 0;
};

bool walkAltitudes(Plan& plan, int last) {
    Walk walk(plan, DescentMark::Type);
    for (int i = 0; i <= last; ++i) {
        const auto passing = walk.leg(i);
        if (!passing) return false;
        plan.at(i).pointAltitude = legalAltitude(plan, passing->altitude);
        plan.at(i).pointMinutes = passing->minutes;
    }
    return true;
}

} // namespace

bool computeProfile(Plan& plan) {
    LevelEstimate estimate;
    if (!chooseLevel(plan, estimate)) return false;
    const auto last = insertTopPoints(plan, estimate);
    if (!last || !walkAltitudes(plan, *last)) return false;
    plan.planLast = static_cast<std::int16_t>(plan.planLast + 2);
    return true;
}

bool recomputeTimes(Plan& plan) {
    Walk walk(plan, DescentMark::Name);
    for (int i = 0; i <= plan.planLast; ++i) {
        const auto passing = walk.leg(i);
        if (!passing) return false;
        plan.at(i).pointMinutes = passing->minutes;
    }
    return true;
}

} // namespace gatewise
