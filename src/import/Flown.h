#pragma once

#include "import/Flight.h"
#include "import/Job.h"
#include "import/Sources.h"

#include <vector>

namespace gatewise::importer {

/// How far apart, in minutes, scheduled departures of one flight may lie.
inline constexpr int kSameDeparture = 10;

/// The timetable behind on-time data: rows of one carrier, number, origin and destination whose departures
/// lie within kSameDeparture minutes of the earliest are one flight, on all days on which it was scheduled,
/// at its most frequent times (the earlier where two are as frequent), with the most frequent type of its
/// tails. Where a carrier's rows span more than two weeks a flight of a single day is left out, unless
/// `everyFlight`. The rows are sorted and thinned of doubles on the way. Not all of them when the job was
/// cancelled.
std::vector<Flight> flownFlights(RawTables& raw, const AircraftTypes& types, bool everyFlight,
                                 Findings& findings, const Job& job = Job());

/// Year and month that most rows fall into, the later of two; {0, 0} without rows.
CycleMonth monthOf(const OnTimeData& data);

} // namespace gatewise::importer
