#pragma once

#include "board/Board.h"
#include "board/Paging.h"
#include "session/Schedule.h"
#include "session/StatusBoard.h"

#include <optional>
#include <string>

namespace gatewise {

/// Whether any flight arrives at, or departs from, the board's airport.
bool hasArrivals(const Schedule& schedule, const StatusBoard& board);
bool hasDepartures(const Schedule& schedule, const StatusBoard& board);

/// The board airport's flights into BoardFlights; false when they do not lie in the files of `setFolder`, and
/// the old ones stay.
bool loadBoardArrivals(const std::string& setFolder, Schedule& schedule, const StatusBoard& board);
bool loadBoardDepartures(const std::string& setFolder, Schedule& schedule, const StatusBoard& board);

/// What the screen adds to a build: the chosen day, the board's clock, the order.
struct BoardChoice {
    int day = 0; // item data of the day list
    std::string hoursText, minutesText;
    BoardSort sort = BoardSort::None;
};

/// The rows of the board from BoardFlights.
void BuildDepartures(const Schedule& schedule, const BoardChoice& choice, StatusBoard& board,
                     const WaitDots& dots);
void BuildArrivals(const Schedule& schedule, const BoardChoice& choice, StatusBoard& board,
                   const WaitDots& dots);
/// The same for the mode in force.
void buildBoard(const Schedule& schedule, const BoardChoice& choice, StatusBoard& board,
                const WaitDots& dots);

/// "05:40": when the next flight of the board's airline goes after the board's clock, on any day; nothing
/// without one. Behind midnight the first of the day is the next.
std::optional<std::string> nextFlightTime(const Schedule& schedule, const BoardChoice& choice,
                                          const StatusBoard& board);

/// Another page; false when there is none.
bool turnPage(StatusBoard& board, int step);

/// The flight of a row (0 to 19) of the page in view, in BoardFlights; nothing for a row without one.
std::optional<int> flightOfRow(const Schedule& schedule, const StatusBoard& board, int row);

} // namespace gatewise
