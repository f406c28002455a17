#pragma once

#include "session/Schedule.h"

#include <functional>
#include <string>
#include <string_view>
#include <system_error>
#include <vector>

namespace gatewise {

/// What the list of schedule sets offers: all schedules, then the folders below \Data.
std::vector<std::string> dataSetNames(const std::string& AppDir);

/// The folder of a name in that list, below AppDir; the main set's where there are no tables.
std::string dataSetPath(const std::string& AppDir, std::string_view name);

/// The place of a folder in that list, 0 when no name stands for it.
int dataSetPlace(const std::vector<std::string>& names, const std::string& DataSetPath);

/// Loads airports, airlines and aircraft of the data set; `before` is told of each table's turn. What cannot
/// be loaded stays as it was.
void LoadTables(const std::string& AppDir, const std::string& DataSetPath, Schedule& schedule,
                const std::function<void(const char* message)>& before = {});

/// Goes over to another data set: all of its tables are loaded, or nothing changes and the error says why.
std::error_code changeTables(const std::string& AppDir, const std::string& DataSetPath, Schedule& schedule);

} // namespace gatewise
