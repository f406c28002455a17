#pragma once

#include "pages/Screens.h"
#include "work/Departures.h"

namespace gatewise {

/// Draws a flight on InfoForm and shows it modally. A number that the list has not leaves the flight that was
/// drawn before.
Waited showFlightInfo(Program& p, FlightSource source, int index);

void bindInfoForm(Program& p);

} // namespace gatewise
