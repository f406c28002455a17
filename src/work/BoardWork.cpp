#include "work/BoardWork.h"

#include "platform/Numbers.h"
#include "platform/TimeOfDay.h"
#include "schedule/Lookups.h"
#include "schedule/Readers.h"

namespace gatewise {

namespace {

const AirportRecord& airportOf(const Schedule& schedule, const StatusBoard& board) {
    return schedule.tables.airport(board.BoardAirportIndex);
}

BoardRequest request(const StatusBoard& board, const BoardChoice& choice) {
    return {board.BoardAirlineCode, choice.day, choice.hoursText, choice.minutesText, choice.sort};
}

} // namespace

bool hasArrivals(const Schedule& schedule, const StatusBoard& board) {
    return airportOf(schedule, board).ArrivalCount >= 1;
}

bool hasDepartures(const Schedule& schedule, const StatusBoard& board) {
    return airportOf(schedule, board).DepartureCount >= 1;
}

bool loadBoardArrivals(const std::string& setFolder, Schedule& schedule, const StatusBoard& board) {
    const AirportRecord& airport = airportOf(schedule, board);
    return loadArrivals(setFolder + "\\arrivals.gt1", setFolder + "\\routes.gt1", airport.ArrivalOffset,
                        airport.ArrivalCount, schedule.BoardFlights);
}

bool loadBoardDepartures(const std::string& setFolder, Schedule& schedule, const StatusBoard& board) {
    const AirportRecord& airport = airportOf(schedule, board);
    return loadFlights(setFolder + "\\routes.gt1", airport.DepartureOffset, airport.DepartureCount,
                       schedule.BoardFlights);
}

void BuildDepartures(const Schedule& schedule, const BoardChoice& choice, StatusBoard& board,
                     const WaitDots& dots) {
    BuildDepartures(schedule.BoardFlights, schedule.tables, request(board, choice), board.board, dots);
}

void BuildArrivals(const Schedule& schedule, const BoardChoice& choice, StatusBoard& board,
                   const WaitDots& dots) {
    BuildArrivals(schedule.BoardFlights, schedule.tables, request(board, choice), board.board, dots);
}

void buildBoard(const Schedule& schedule, const BoardChoice& choice, StatusBoard& board,
                const WaitDots& dots) {
    if (board.BoardMode == "arriving")
        BuildArrivals(schedule, choice, board, dots);
    else
        BuildDepartures(schedule, choice, board, dots);
}

std::optional<std::string> nextFlightTime(const Schedule& schedule, const BoardChoice& choice,
                                          const StatusBoard& board) {
    constexpr int kDay = kHoursOfDay * kMinutesOfHour;
    const auto time =
        board.BoardMode == "arriving" ? &FlightRecord::ArrivalTime : &FlightRecord::DepartureTime;
    const int now = timeOfDay(choice.hoursText, choice.minutesText).value_or(0);
    const bool any = board.BoardAirlineCode.view() == kAnyAirlineCode;
    std::optional<int> nearest; // minutes from now
    for (const FlightRecord& flight : schedule.BoardFlights) {
        const auto minutes = timeOfDay(flight.*time);
        if (!minutes || (!any && flight.AirlineCode.trimmed() != board.BoardAirlineCode.trimmed())) continue;
        const int ahead = (*minutes - now + kDay) % kDay;
        if (!nearest || ahead < *nearest) nearest = ahead;
    }
    if (!nearest) return std::nullopt;
    const int at = (now + *nearest) % kDay;
    return formatInteger("00", at / kMinutesOfHour) + ":" + formatInteger("00", at % kMinutesOfHour);
}

bool turnPage(StatusBoard& board, int step) {
    const bool there =
        step > 0 ? hasNextPage(board.board.BoardRowCount, board.BoardPage) : hasPreviousPage(board.BoardPage);
    if (there) board.BoardPage = static_cast<std::int16_t>(board.BoardPage + step);
    return there;
}

std::optional<int> flightOfRow(const Schedule& schedule, const StatusBoard& board, int row) {
    const int place = board.BoardPage * kRowsOnPage + row;
    const auto& rows = board.board.BoardRows;
    if (place < 0 || place >= static_cast<int>(rows.size())) return std::nullopt;
    const int flight = rows[static_cast<std::size_t>(place)].FlightIndex;
    if (flight < 0 || flight > schedule.BoardFlightCount()) return std::nullopt;
    return flight;
}

} // namespace gatewise
