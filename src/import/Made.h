#pragma once

#include "import/Airport.h"
#include "import/Flight.h"
#include "import/Job.h"
#include "import/Sources.h"
#include "import/Zones.h"

#include <vector>

namespace gatewise::importer {

/// Flights for the rows of a route table, which tells who flies where with what and no more: frequency by
/// distance and type, departures spread over the day so that both ends are awake, block time by the type's
/// speed, arrivals by the clocks of the month. Follows from the input alone. Rows for which `real` has
/// flights of the same airline between the same airports are left out, so are stops and codes shared with an
/// airline that flies the pair itself. Flight numbers are those that the airline's real flights leave free.
std::vector<Flight> madeFlights(const std::vector<RouteIn>& routes, const Airports& airports,
                                const AircraftTypes& types, const Zones& zones, CycleMonth month,
                                const std::vector<Flight>& real, Findings& findings, const Job& job = Job());

} // namespace gatewise::importer
