#include "work/Departures.h"

#include "schedule/Readers.h"
#include "selection/Nearest.h"

namespace gatewise {

bool loadDepartures(const std::string& setFolder, int airport, Schedule& schedule) {
    if (airport < 0 || airport > schedule.tables.AirportCount()) return false;
    const AirportRecord& record = schedule.tables.airport(airport);
    if (record.DepartureCount < 1) return false;
    std::vector<FlightRecord> flights;
    if (!loadFlights(setFolder + "\\routes.gt1", record.DepartureOffset, record.DepartureCount, flights))
        return false;
    schedule.DepartureFlights = std::move(flights);
    return true;
}

void pickDeparture(int airport, Dispatch& dispatch, StatusBoard& board) {
    board.BoardPage = 0;
    dispatch.HaveDeparture = kTrue;
    dispatch.DepartureIndex = airport;
}

bool takeDepartures(const std::string& setFolder, const Dispatch& dispatch, Schedule& schedule,
                    StatusBoard& board) {
    if (!loadDepartures(setFolder, dispatch.DepartureIndex, schedule)) return false;
    board.BoardAirportIndex = dispatch.DepartureIndex;
    return true;
}

bool homeFollowsDeparture(const Dispatch& dispatch, Settings& settings) {
    if (settings.SetDept != 1) return false;
    settings.HomeIndex = dispatch.DepartureIndex;
    return true;
}

bool homeFollowsDestination(const Dispatch& dispatch, Settings& settings) {
    if (settings.SetDest != 1) return false;
    settings.HomeIndex = dispatch.DestinationIndex;
    return true;
}

void pickDestination(int airport, Dispatch& dispatch) {
    dispatch.HaveDestination = kTrue;
    dispatch.DestinationIndex = airport;
}

void pickAlternate(int airport, Dispatch& dispatch) {
    dispatch.HaveAlternate = kTrue;
    dispatch.AlternateIndex = airport;
}

void FindNearestAlternate(const Schedule& schedule, const Settings& settings, Dispatch& dispatch,
                          float& lastCourse) {
    if (settings.FindAlternate != 1) return;
    const double least = settings.MinDist.value_or(0);
    if (const auto found = nearestAlternate(schedule.tables, dispatch.DestinationIndex, least, &lastCourse))
        pickAlternate(*found, dispatch);
}

const FlightRecord* flightAt(const Schedule& schedule, FlightSource source, int index) {
    const auto& flights =
        source == FlightSource::DepartureFlights ? schedule.DepartureFlights : schedule.BoardFlights;
    if (index < 0 || index >= static_cast<int>(flights.size())) return nullptr;
    return &flights[static_cast<std::size_t>(index)];
}

void takeFlight(const Schedule& schedule, FlightSource source, int index, Dispatch& dispatch,
                StatusBoard& board) {
    if (const FlightRecord* flight = flightAt(schedule, source, index)) dispatch.CurrentFlight = *flight;
    dispatch.HaveDeparture = dispatch.HaveDestination = kTrue;
    dispatch.DepartureIndex = board.BoardAirportIndex = dispatch.CurrentFlight.OriginIndex;
    dispatch.DestinationIndex = dispatch.CurrentFlight.DestIndex;
}

void clearDispatch(Dispatch& dispatch) {
    dispatch.HaveDestination = dispatch.HaveAlternate = kFalse;
    dispatch.DestinationIndex = dispatch.AlternateIndex = 0;
}

} // namespace gatewise
