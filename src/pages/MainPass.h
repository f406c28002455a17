#pragma once

#include "pages/Screens.h"
#include "work/Departures.h"

namespace gatewise {

/// Puts a flight onto the pass. A number that the list has not, and an airport that the table has not, leave
/// what they would have set: the pass then shows the flight, or the airport, that was there.
Waited SelectFlight(Program& p, int index, FlightSource source);

/// The nearest airport beyond the minimum distance becomes the alternate, when the settings ask for it.
void FindNearestAlternate(Program& p);

} // namespace gatewise
