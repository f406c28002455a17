#pragma once

#include "gt1/DataSet.h"
#include "gt1/Report.h"
#include "gt1/Tables.h"

#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace gatewise::gt1 {

/// Makes the .gt1 files of `target` from the tables of `source`. With `world` the set is a further one: its
/// plans and flights refer to the shared tables in that folder, and only the set's own files are made.
/// Nothing is written when the report has an error. Returns one line that says what was made.
std::string compileFolder(const std::filesystem::path& source, const std::filesystem::path& target,
                          const std::optional<std::filesystem::path>& world, Report& report);

/// The tables of a data set folder. A folder without aircraft.gt1 is a further set: the shared files are
/// looked for in `world`, or the folder above, and their tables are left out.
std::vector<NamedTable> dumpFolder(const std::filesystem::path& folder,
                                   const std::optional<std::filesystem::path>& world, Report& report);

/// The tables that all sets share: aircraft, vor, ndb, fixes, jets. `goesOn` as in tableText.
std::vector<NamedTable> worldTables(const World& world, const std::function<bool()>& goesOn = {});

/// Writes the tables into a folder, which is created when it is missing.
void writeTables(const std::vector<NamedTable>& tables, const std::filesystem::path& folder, Report& report);

} // namespace gatewise::gt1
