#pragma once

#include "plan/PlanTable.h"
#include "platform/Drawing.h"

#include <algorithm>

// What all pictures of a plan go by, and the sheet of its profile.

namespace gatewise {

/// Whether the plan has a length and its points lie on the earth.
bool isDrawable(const Plan& plan);

Tone pointTone(const Plan& plan, int i);

/// Feet at which a point is drawn; the airports stand on the ground, whatever level the table shows there.
double altitudeAt(const Plan& plan, int i);

// Room around the drawn part of the sheet.
inline constexpr double kProfileLeft = 0.09, kProfileRight = 0.97, kProfileTop = 0.08, kProfileBottom = 0.88;

/// The sheet of a profile: its length in miles and the feet at its upper edge.
struct ProfileSheet {
    explicit ProfileSheet(const Plan& plan) : length(static_cast<double>(plan.totalDistance)) {
        for (int i = 0; i <= plan.planLast; ++i) highest = std::max(highest, altitudeAt(plan, i));
        highest *= 1.1;
    }
    [[nodiscard]] DrawingPoint operator()(double miles, double feet) const {
        return {kProfileLeft + (kProfileRight - kProfileLeft) * std::clamp(miles / length, 0.0, 1.0),
                kProfileBottom - (kProfileBottom - kProfileTop) * std::clamp(feet / highest, -0.05, 1.0)};
    }
    [[nodiscard]] DrawingPoint operator()(const Plan& plan, int i) const {
        return (*this)(static_cast<double>(plan.at(i).pointTotalDistance), altitudeAt(plan, i));
    }
    double length;
    double highest = 10000;
};

} // namespace gatewise
