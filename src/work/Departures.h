#pragma once

#include "session/Dispatch.h"
#include "session/Schedule.h"
#include "session/Settings.h"
#include "session/StatusBoard.h"

#include <string>

namespace gatewise {

/// The departures of an airport into DepartureFlights; false when it has none or they do not lie in the file
/// of `setFolder`, and the old ones stay.
bool loadDepartures(const std::string& setFolder, int airport, Schedule& schedule);

/// An airport becomes the departure airport; its flights are loaded by takeDepartures.
void pickDeparture(int airport, Dispatch& dispatch, StatusBoard& board);

/// LoadDepartureFlights: the departures of DepartureIndex, which becomes the board's airport with them. False
/// as in loadDepartures.
bool takeDepartures(const std::string& setFolder, const Dispatch& dispatch, Schedule& schedule,
                    StatusBoard& board);

/// The home airport follows the departure airport, or the destination, when the settings ask for it. True
/// when it was set.
bool homeFollowsDeparture(const Dispatch& dispatch, Settings& settings);
bool homeFollowsDestination(const Dispatch& dispatch, Settings& settings);

void pickDestination(int airport, Dispatch& dispatch);
void pickAlternate(int airport, Dispatch& dispatch);

/// The nearest airport beyond the minimum distance becomes the alternate. `lastCourse` is left by the
/// measuring. Nothing when the settings do not ask for it.
void FindNearestAlternate(const Schedule& schedule, const Settings& settings, Dispatch& dispatch,
                          float& lastCourse);

/// Flight `index` of DepartureFlights or of BoardFlights.
enum class FlightSource { DepartureFlights = 0, BoardFlights = 1 };
const FlightRecord* flightAt(const Schedule& schedule, FlightSource source, int index);

/// SelectFlight's records: the flight, its airports, the departures of the first. A flight that the list has
/// not leaves the one that was there.
void takeFlight(const Schedule& schedule, FlightSource source, int index, Dispatch& dispatch,
                StatusBoard& board);

/// Nothing is picked but the departure airport.
void clearDispatch(Dispatch& dispatch);

} // namespace gatewise
