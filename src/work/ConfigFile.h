#pragma once

#include "session/Settings.h"

#include <string>
#include <system_error>

namespace gatewise {

/// AppDir\GT.cfg
std::string configPath(const std::string& AppDir);

/// Takes the settings of GT.cfg. Ends silently at the first value that cannot be converted and leaves all
/// later ones as they are. A file that is there but cannot be read leaves its error in `settings.unread`.
void ReadConfig(const std::string& AppDir, Settings& settings);

/// Writes every setting, in one replacement of the file; never over one that could not be read.
std::error_code WriteConfig(const std::string& AppDir, const Settings& settings);

} // namespace gatewise
