#pragma once

#include "pages/Program.h"

#include <string>

namespace gatewise {

/// Flights of the home airport at start-up.
void LoadHomeFlights(Program& p);

/// Puts flight `flightIndex` (text of a number) of DepartureFlights (source 0) or BoardFlights (1) onto the
/// pass. A number that the list has not, and an airport that the table has not, leave what they would have
/// set: the pass then shows the flight, or the airport, that was there.
void SelectFlight(Program& p, const std::string& flightIndex, int source);

/// Empties the boarding pass and disables what depends on a flight.
void ClearDispatch(Program& p);

/// What follows a pick on SelectForm; the pick is its selected entry.
void PickDeparture(Program& p);

/// The nearest airport beyond the minimum distance becomes the alternate, when the settings ask for it.
void FindNearestAlternate(Program& p);

/// Starts the engine as every sound begins: engine, stereo, speaker configuration.
void startSoundEngine(Program& p);

} // namespace gatewise
