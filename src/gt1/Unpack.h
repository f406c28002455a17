#pragma once

#include "gt1/DataSet.h"
#include "gt1/Report.h"

#include <filesystem>

namespace gatewise::gt1 {

/// The records of the .gt1 files in a folder. Errors for a missing file, a length that is no whole number of
/// records, a position outside its file, a line that is none of the regions.
DataSet unpackDataSet(const std::filesystem::path& folder, Report& report);
World unpackWorld(const std::filesystem::path& folder, Report& report);

} // namespace gatewise::gt1
