#pragma once

#include "programs/Route.h"
#include "programs/Xml.h"

#include <string>

// What the flight plans of Microsoft's simulators of all years share.

namespace gatewise::programs {

/// N53° 38' 1.22",E9° 59' 6.80",+000040.75 as a text of the program. Rounded to a hundredth of a second
/// before it is taken apart, so that no part is ever 60.
std::string worldPosition(const RoutePoint& point);

/// What the simulators call the kind of a point.
const char* waypointType(const RoutePoint& point);

/// An element for a point: its kind, position, airway and identifier.
void addIcao(Xml& xml, const RoutePoint& point);
void addWaypointBody(Xml& xml, const RoutePoint& point);

} // namespace gatewise::programs
