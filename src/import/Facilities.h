#pragma once

#include "import/Airport.h"
#include "import/Job.h"
#include "import/Sources.h"

namespace gatewise::importer {

/// Gives the airports their runways: by the ident, and where an airport changed its ident by the place (3
/// nm). Headings are computed from the two ends where both are known; the magnetic ones from the variation of
/// the nearest VOR; an ILS goes to the runway of its number, else to the one that its localizer lies behind.
void addRunways(Airports& airports, const RawTables& raw, Findings& findings, const Job& job);

/// Gives the airports one frequency for each role, channels of 25 kHz before the others.
void addRadios(Airports& airports, const RawTables& raw, const Job& job);

} // namespace gatewise::importer
