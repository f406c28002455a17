#pragma once

#include "pages/Program.h"

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
void bindMainLog(Program& p);

} // namespace gatewise
