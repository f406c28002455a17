#pragma once

#include "career/Career.h"
#include "platform/MapScene.h"
#include "platform/Numbers.h"

#include <string>
#include <utility>
#include <vector>

// A career as a table, as bars and as a map.

namespace gatewise {

using CareerRow = std::pair<std::string, std::string>; // name, value

/// The table behind the pictures: sums, the first of each list, then years and months. An empty log book
/// gives its sums of 0.
std::vector<CareerRow> careerRows(const Career& career, const NumberLocale& numbers);

/// The same for pasting: a line for each row, name and value apart by a tab, lines ended by CR LF.
std::string careerText(const std::vector<CareerRow>& rows);

/// Flights by month, January to December, and by year, the last twelve of them, side by side; the words for
/// a reader have all years. Empty without a flight.
Drawing careerBars(const Career& career);

/// All routes flown, the thicker the more often, and the airports, the most visited first. Ids are places in
/// these lists, the airports counted before the routes.
MapScene careerScene(const Career& career, std::shared_ptr<const map::Land> land);

} // namespace gatewise
