#pragma once

#include "pages/Screens.h"

#include <string_view>

namespace gatewise {

/// Fills FlightList with the flights of DepartureFlights to an airport on the chosen day. More than the list
/// holds is a failure that is told.
Waited SetFlightList(Program& p, std::string_view destinationIata);

/// InfoForm for the selected row of FlightList.
Waited showPickedInfo(Program& p);

/// The selected row of FlightList becomes the flight on the pass.
Waited takePickedFlight(Program& p);

/// The flight list of the pass's pair once more.
Waited showFlightsAgain(Program& p);

void bindFlightForm(Program& p);

} // namespace gatewise
