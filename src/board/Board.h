#pragma once

#include "board/BoardTypes.h"
#include "schedule/Records.h"

#include <functional>
#include <string_view>
#include <vector>

// What the status board shows for the flights of an airport.

namespace gatewise {

/// The choice on the options screen. None leaves the order of the flight list.
enum class BoardSort { None, City, Time, FlightNumber };

/// What a build looks at besides the flights.
struct BoardRequest {
    FixedText<3> BoardAirlineCode; // "- A" for any airline
    int day = 0;                   // item data of the day list: 0 for any day, else one bit of DaysMask
    std::string_view hoursText;    // what gt_hoursLABEL and gt_minutesLABEL show
    std::string_view minutesText;
    BoardSort sort = BoardSort::None;
};

/// Called with the number of the dots to show on the wait screen.
using WaitDots = std::function<void(int)>;

/// Rebuilds BoardList and BoardRows. Both get as many entries as there are flights, blank behind the filled
/// ones. A flight whose time is no time of day is not shown.
///
/// Entries are ordered by SortBoard. BoardRowCount keeps its old value when the last flights of a full list
/// repeat one another.
void BuildDepartures(const std::vector<FlightRecord>& flights, const Tables& tables,
                     const BoardRequest& request, BoardLists& lists, const WaitDots& waitDots = {});

/// The same for arrivals; with every flight of the list passing, the last one is left out.
void BuildArrivals(const std::vector<FlightRecord>& flights, const Tables& tables,
                   const BoardRequest& request, BoardLists& lists, const WaitDots& waitDots = {});

} // namespace gatewise
