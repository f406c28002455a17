#pragma once

#include "gt1/DataSet.h"
#include "gt1/Report.h"

#include <filesystem>

namespace gatewise::gt1 {

/// The tables of `folder` that all data sets share: aircraft, vor, ndb, fixes, jets.
World readWorld(const std::filesystem::path& folder, Report& report);

/// The tables of a data set in `folder`, with every reference resolved.
DataSet readDataSet(const std::filesystem::path& folder, const World& world, Report& report);

} // namespace gatewise::gt1
