#pragma once

#include "board/Paging.h"
#include "pages/Program.h"

#include <string>
#include <string_view>

namespace gatewise {

/// The headings of the columns are labels behind those of the rows.
inline constexpr int kHeadingRow = kRowsOnPage;

/// Shows n of five lit dots on the standby screen and paints it; n from 0 to 5.
void SetWaitDots(Program& p, int n);

/// The standby screen with its text, shown without blocking and painted; `dots` below 0 leaves them.
void showWait(Program& p, std::string text, int dots);
void hideWait(Program& p);

/// Turns the board: called with the mode that is left, "departing" or "arriving".
void SwitchBoard(Program& p, std::string leaving);

/// Brings up the mode in force anew, as SwitchBoard with the other mode's word.
void bringUpBoard(Program& p);

/// Rebuilds the board for the mode in force, without file access, from page 0.
void RefreshBoard(Program& p);

/// BoardRows from BoardFlights for the mode in force.
void BuildDepartures(Program& p);
void BuildArrivals(Program& p);
void buildBoard(Program& p);

void WriteHeader(Program& p);
void ShowPage(Program& p);
void NextPage(Program& p);
void PreviousPage(Program& p);

/// Code of an airline name, or "- Any Airline -"; an airline that this data set lacks gives way to one of the
/// board's.
std::string find_airline_code(Program& p, std::string name);

/// Distinct airlines of BoardFlights by their names, in SelectForm.List1.
void listBoardAirlines(Program& p);

/// Picks the favourite airline in SelectForm.List1, or item 0.
void pickFavorite(Program& p);

} // namespace gatewise
