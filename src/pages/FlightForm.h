#pragma once

#include "pages/Program.h"

#include <string_view>

namespace gatewise {

/// Fills FlightList with the flights of DepartureFlights to an airport on the chosen day.
void SetFlightList(Program& p, std::string_view destinationIata);

/// InfoForm for the selected row of FlightList.
void showPickedInfo(Program& p);

/// The selected row of FlightList becomes the flight on the pass.
void takePickedFlight(Program& p);

/// The flight list of the pass's pair once more.
void showFlightsAgain(Program& p);

void bindFlightForm(Program& p);

} // namespace gatewise
