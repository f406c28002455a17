#pragma once

#include "import/ReadRows.h"

// Airports, runways, frequencies and navaids in tables whose columns go by their names.

namespace gatewise::importer {

Table<AirportIn> readAirports(const Reading& reading);
/// Open runways whose ends both have a name; a runway with one end keeps the other one empty.
Table<RunwayIn> readRunways(const Reading& reading);
Table<RadioIn> readRadios(const Reading& reading);
/// VOR and NDB alone.
Table<NavAidIn> readRadioAids(const Reading& reading);

} // namespace gatewise::importer
