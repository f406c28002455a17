#pragma once

#include "pages/Screens.h"

namespace gatewise {

/// Flights of the home airport at start-up.
Waited LoadHomeFlights(Program& p);

/// An airport that was picked becomes the departure airport. One without flights says so, and the old flights
/// stay.
Waited PickDeparture(Program& p, int airport);

/// The name of an airport; one that the table has not leaves the label as it is.
void showAirport(const Program& p, Label& label, int airport);

/// Empties the boarding pass and disables what depends on a flight.
void ClearDispatch(Program& p);

/// Buttons that need a flight on the pass.
void setFlightButtons(forms::MainForm& f, int state);

} // namespace gatewise
