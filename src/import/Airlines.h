#pragma once

#include "import/Flight.h"
#include "import/Sources.h"
#include "schedule/Records.h"

#include <set>
#include <string>
#include <vector>

namespace gatewise::importer {

/// The airlines of these codes, ordered by them, with names and call signs by the tables: of several holders
/// of a code the one that the route table means, or whose name the carriers' table has, or that still flies.
std::vector<AirlineRecord> makeAirlines(const RawTables& raw, const std::set<std::string>& codes,
                                        Findings& findings);

} // namespace gatewise::importer
