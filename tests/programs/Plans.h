#pragma once

#include "plan/PlanTable.h"
#include "programs/Route.h"

#include <string>
#include <vector>

// Plans written by hand, so that what the writers make of them can be checked line by line.

namespace gatewise::test {

struct PointRow {
    const char* type;
    const char* name;
    const char* description;
    float latitude, longitude;
    const char* airway;
    std::int32_t altitude;
};

PlanAirport airportOf(const char* icao, const char* name, float latitude, float longitude,
                      std::int32_t elevation);

/// A plan of two airports; `rows` go between them.
Plan planOf(const PlanAirport& from, const PlanAirport& to, const std::vector<PointRow>& rows);

/// KATL to KMIA with every kind of point, tops and a step, joined airways, and names that XML would trip
/// over.
Plan mixedPlan();
/// Over the 180th meridian, on southern and eastern sides.
Plan pacificPlan();
/// Two airports and nothing else.
Plan directPlan();

/// 17 June 2002, 11:05 UTC.
DateTime testMoment();

programs::Route routeOfPlan(const Plan& plan, bool withComputed = false, const Regions& regions = {});

/// The regions of the mixed plan's points, those of another GNV and of a point far from ICBOD among them.
Regions mixedRegions();

} // namespace gatewise::test
