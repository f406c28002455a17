#pragma once

#include "gt1/Report.h"
#include "import/Imported.h"
#include "import/Job.h"

#include <filesystem>
#include <string>

namespace gatewise::importer {

/// Whether a set can have this name (a text of the program): a folder below Data will be called so.
bool isSetName(std::string_view name);

/// What all sets of a program folder share, from its Data folder; errors in the report.
gt1::World sharedOf(const std::filesystem::path& programFolder, gt1::Report& report);

/// Compiles what was imported and puts it into the program folder: the set as a folder below Data, the shared
/// tables grown at their end. Everything is checked and written to a fresh place first and put in by renames,
/// so that a run that is stopped at any point leaves every set whole; what an earlier run left behind is
/// cleared up. A set of the same name is replaced. False when the job was cancelled, or with errors in the
/// report; then nothing has changed.
bool install(const Imported& imported, const std::filesystem::path& programFolder, gt1::Report& report,
             const Job& job = Job());

/// Writes the plain tables for a person: those of the set into `folder`, the shared ones into its folder
/// "shared". `gt1 compile FOLDER TARGET --world FOLDER/shared` makes the set again.
void keepTables(const Imported& imported, const std::filesystem::path& folder, gt1::Report& report);

} // namespace gatewise::importer
