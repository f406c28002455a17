#pragma once

#include "import/Imported.h"

#include <string>

namespace gatewise::importer {

/// What a person is told about the form of a table, one line: "airports (OpenFlights), 7698 rows".
std::string describe(const SourceInfo& info);

/// A day's serial as "2002-06-01".
std::string dayText(int serial);

/// What was read, kept and left out, and why.
std::string reportText(const Imported& imported, const RawTables& raw, const Findings& findings);

/// Where the set comes from: the sources that were used, with the copyright lines of the navigation tables.
std::string sourcesText(const RawTables& raw);

} // namespace gatewise::importer
