#pragma once

#include "forms/Forms.h"

#include <string>

// What a screen shows as a text that other programs take: cells parted by tabs, one line for each row.

namespace gatewise {

/// The picked row of a table; empty when none is picked.
std::string rowText(const ListView& list);

/// The board's page: its two lines, the heads, the rows that are filled.
std::string boardText(const forms::MainForm& f);

/// The boarding pass, a line for each of its fields; empty without a flight on it.
std::string passText(const forms::MainForm& f);

/// What a copy of that screen means: the pass or the board of the main screen, else the picked row of the
/// screen's table. Empty when there is nothing to copy.
std::string copyText(const Forms& forms, const Screen& screen);

} // namespace gatewise
