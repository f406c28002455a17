#pragma once

#include "import/ReadRows.h"

// Fixes, navaids and airways of the navigation forms, with and without regions.

namespace gatewise::importer {

Table<FixIn> readFixes(const Reading& reading);
/// NDB, VOR and the localizers of ILS.
Table<NavAidIn> readNavAids(const Reading& reading);
Table<AirwayIn> readAirways(const Reading& reading);

} // namespace gatewise::importer
