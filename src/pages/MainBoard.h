#pragma once

#include "board/Paging.h"
#include "pages/Screens.h"

#include <string>

namespace gatewise {

/// The headings of the columns are labels behind those of the rows.
inline constexpr int kHeadingRow = kRowsOnPage;

/// Turns the board: called with the mode that is left, "departing" or "arriving". Says so when there is
/// nothing to turn to.
Waited SwitchBoard(Program& p, std::string leaving);

/// Brings up the mode in force anew, as SwitchBoard with the other mode's word.
Waited bringUpBoard(Program& p);

/// Rebuilds the board for the mode in force, without file access, from page 0.
Waited RefreshBoard(Program& p);

/// The rows of the board from the flights that are loaded, for the mode in force.
void buildBoard(Program& p);

void WriteHeader(Program& p);
void ShowPage(Program& p);

/// All 20 status texts, blinking or not.
void showStatusTexts(forms::MainForm& f);

/// So many pages on, or back when negative, up to the first or the last.
void turnPages(Program& p, int pages);
void NextPage(Program& p);
void PreviousPage(Program& p);

} // namespace gatewise
