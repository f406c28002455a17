#pragma once

#include "state/Program.h"

#include <string>
#include <string_view>

namespace gatewise {

/// Fills FlightList with the flights of DepartureFlights to an airport on the chosen day.
void SetFlightList(Program& p, std::string_view destinationIata);

/// Draws a flight on InfoForm (state 0: of DepartureFlights, 1: of BoardFlights) and shows it modally.
void showFlightInfo(Program& p, int state, const std::string& pointer);

/// InfoForm for the selected row of FlightList.
void showPickedInfo(Program& p);

/// The selected row of FlightList becomes the flight on the pass.
void takePickedFlight(Program& p);

/// The flight list of the pass's pair once more.
void showFlightsAgain(Program& p);

void bindFlightScreens(Program& p);

} // namespace gatewise
