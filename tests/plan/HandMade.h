#pragma once

#include "PlanWorld.h"

#include <string>
#include <vector>

// Plans whose figures can be worked out by hand.

namespace gatewise::test {

/// A direct flight of about so many miles due east along the equator, where a degree is 60 miles.
inline FlightWorld equator(double miles) {
    FlightWorld world;
    world.departure().Latitude = world.destination().Latitude = 0;
    world.departure().Longitude = 0;
    world.destination().Longitude = static_cast<float>(miles / 60);
    return world;
}

/// A table whose legs are given by hand, so that the stages can be looked at one by one.
inline Plan handMade(const std::vector<float>& totals) {
    FlightWorld world;
    Plan plan;
    loadAircraftPerformance(plan, world.tables.aircraft, "733");
    plan.planLast = static_cast<std::int16_t>(totals.size() - 1);
    plan.cruiseAltitude = 17000;
    for (std::size_t i = 0; i < totals.size(); ++i) {
        PlanPoint& point = plan.points[i];
        point.pointName = std::string(1, static_cast<char>('A' + i));
        point.pointTotalDistance = totals[i];
        point.pointLegDistance = 1000.0F + static_cast<float>(i);
        point.pointHeading = 90;
        point.pointLongitude = totals[i] / 60;
    }
    return plan;
}

} // namespace gatewise::test
