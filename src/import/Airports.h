#pragma once

#include "import/Airport.h"
#include "import/Job.h"
#include "import/Sources.h"

#include <set>
#include <string>

namespace gatewise::importer {

/// Every airport with both codes, from both tables of airports (the one with a header wins), with its runways
/// and radios. Airports that no flight uses stay only where they have a runway: keepUsed() sees to that. Not
/// all of them when the job was cancelled.
Airports makeAirports(const RawTables& raw, Findings& findings, const Job& job = Job());

/// Leaves out the airports that have neither a runway nor a flight.
void keepUsed(Airports& airports, const std::set<std::string>& usedIata, Findings& findings);

} // namespace gatewise::importer
