#pragma once

#include "pages/Screens.h"

namespace gatewise {

void ShowLogPage(Program& p);

/// The log book's first page, no row selected.
void showFirstLogPage(Program& p);

/// "log": an entry for the flight on the pass.
Waited AddLogEntry(Program& p);

/// Removes the entry LogSelected, once the pilot has said so.
Waited DeleteLogEntry(Program& p);
Waited askToDelete(Program& p);

/// Puts the entry back that was deleted last in this run.
Waited undoDeletion(Program& p);

/// The whole log book as CSV, in a file that the pilot names.
Waited exportLogBook(Program& p);

/// The page in view on paper.
Waited printLogPage(Program& p);

Waited editLogEntry(Program& p);
void previousLogPage(Program& p);
void nextLogPage(Program& p);
Waited saveEditedEntry(Program& p);
void closeLogEntry(Program& p);

void bindMainLog(Program& p);

} // namespace gatewise
