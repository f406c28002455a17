#pragma once

#include "import/Airports.h"
#include "import/Flight.h"
#include "import/Job.h"
#include "import/Sources.h"
#include "import/Zones.h"

#include <vector>

namespace gatewise::importer {

/// All flights of a set, ordered by origin, time, destination, airline and number: a pilot's own, those as
/// flown, and those made from the route table where neither exists. Not all of them when the job was
/// cancelled.
std::vector<Flight> makeTimetable(RawTables& raw, const Airports& airports, const AircraftTypes& types,
                                  bool everyFlight, Findings& findings, const Job& job);

/// The month whose clocks count: of the timetable as flown, else of the navigation's cycle, else June 2002.
CycleMonth monthOfTimetable(const RawTables& raw);
/// "June 2002" where flights as flown say so, else "World".
std::string defaultName(const RawTables& raw);

} // namespace gatewise::importer
