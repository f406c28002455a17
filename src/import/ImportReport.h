#pragma once

#include "import/Import.h"

#include <string>

namespace gatewise::importer {

/// What was read, kept and left out, and why.
std::string reportText(const Imported& imported, const RawTables& raw, const Findings& findings);

/// Where the set comes from: the sources that were used, with the copyright lines of the navigation tables.
std::string sourcesText(const RawTables& raw);

} // namespace gatewise::importer
