#pragma once

#include "import/Airport.h"
#include "import/Flight.h"
#include "import/Sources.h"

#include <vector>

namespace gatewise::importer {

/// A pilot's own flights, as far as their airports are known; what they leave open is filled in.
std::vector<Flight> ownFlights(const std::vector<OwnFlightIn>& rows, const Airports& airports,
                               const AircraftTypes& types, Findings& findings);

/// Leaves out the flights whose airline has other ones between the same airports in `winners`.
void giveWay(std::vector<Flight>& flights, const std::vector<Flight>& winners);

} // namespace gatewise::importer
