#pragma once

#include "plan/PlanTable.h"
#include "plan/Regions.h"
#include "platform/Machine.h"
#include "programs/RoutePoint.h"

#include <string>
#include <string_view>
#include <vector>

// The plan as the programs of today take it. All that they have in common is done here once, so that a writer
// only writes: which points leave, what they are called, by which airway each is reached, where exactly it
// lies.

namespace gatewise::programs {

struct Route {
    std::vector<RoutePoint> points; // the departure first, the destination last, both airports
    std::string flight;             // names the flight: a text of the program in one line
    int cruiseAltitude = 0;         // feet, 0 to 99,900
    int trueAirspeed = 0;           // knots at that altitude, 0 to 9,999
    int minutes = 0;                // from departure to destination, 0 to 9,999
    DateTime written;               // UTC

    [[nodiscard]] const RoutePoint& from() const { return points.front(); }
    [[nodiscard]] const RoutePoint& to() const { return points.back(); }
};

/// The route of a plan, for the flight that `stem` names. Top and step points are in it only `withComputed`.
/// A point whose position is none is left out. An identifier that another place of its kind has already gets
/// a number and is a point of the user's, as is a point of no known type; what has no identifier is "WP" and
/// a number. Fixes and navaids get the regions that `regions` has for their identifier and place.
Route routeOf(const Plan& plan, std::string_view stem, const DateTime& utc, bool withComputed,
              const Regions& regions = {});

/// The regions of a plan's points, out of the text of a file of regions; the others are left out.
Regions regionsOf(const Plan& plan, std::string_view text);

/// The one name of an airway: of joined names ("J13-J14") the one by which the next leg goes on, else the
/// first.
std::string oneAirway(std::string_view airway, std::string_view next);

} // namespace gatewise::programs
