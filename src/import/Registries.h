#pragma once

#include "import/ReadRows.h"

// Which tail number is which aircraft, which code is which carrier, and a pilot's own flights.

namespace gatewise::importer {

/// Rows that hold the tail number alone are left out without a word: the source has many of them.
Table<TailIn> readTails(const Reading& reading);
Table<RegistryIn> readRegistry(const Reading& reading);
Table<RegistryModelIn> readRegistryModels(const Reading& reading);
Table<CarrierIn> readCarriers(const Reading& reading);
/// The plain table of flights, in part or whole: only origin, departure, destination, arrival, airline and
/// number must be there.
Table<OwnFlightIn> readOwnFlights(const Reading& reading);

} // namespace gatewise::importer
