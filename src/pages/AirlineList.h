#pragma once

#include "pages/Screens.h"
#include "selection/Picks.h"

#include <optional>
#include <string>
#include <vector>

// The picker's list as the board's filter uses it: the airlines that fly here, the favourite among them.

namespace gatewise {

/// Takes lines over, already in the list's own order.
void takeLines(ListBox& list, const std::vector<PickItem>& items);

/// Distinct airlines of BoardFlights by their names, in SelectForm.List1.
void listBoardAirlines(Program& p);

/// Picks the favourite airline in SelectForm.List1, or item 0.
void pickFavorite(Program& p);

/// Code of an airline name, or "- Any Airline -"; an airline that this data set lacks gives way to one of the
/// board's. Where the board has none a message says so; nothing when the program ended in it.
std::optional<std::string> find_airline_code(Program& p, std::string name);

/// The board is filtered by the favourite airline, as find_airline_code takes it.
Waited filterByFavorite(Program& p);

} // namespace gatewise
