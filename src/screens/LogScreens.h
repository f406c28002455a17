#pragma once

#include "state/Program.h"

#include <string_view>

namespace gatewise {

/// Reads the log book and merges the times that came back from the simulator.
void LoadLogBook(Program& p);

/// "log": an entry for the flight on the pass.
void AddLogEntry(Program& p);
/// Writes the entry LogSelected back in place; false after a message about what kept it from being written.
bool SaveLogEntry(Program& p);
/// Removes the entry LogSelected.
void DeleteLogEntry(Program& p);
void ShowLogPage(Program& p);
void ShowClockField(Program& p);

/// The page buttons after a turn, with no row selected.
void resetLogButtons(Program& p);

/// The whole log book as CSV, in a file that the pilot names.
void exportLogBook(Program& p);
/// The page in view on paper.
void printLogPage(Program& p);

void editLogEntry(Program& p);
void previousLogPage(Program& p);
void nextLogPage(Program& p);
void saveEditedEntry(Program& p);
void closeLogEntry(Program& p);
void askToDelete(Program& p);
/// "timeHr_up", "timeHr_dn", "timeMin_up", "timeMin_dn" on the field LogField of the entry.
void stepLogField(Program& p, std::string_view type);

void bindLogScreens(Program& p);
void bindLogEntry(Program& p);

} // namespace gatewise
