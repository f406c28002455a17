#pragma once

#include "pages/Program.h"

#include <system_error>

namespace gatewise {

/// Puts the settings of AppDir\GT.cfg into the controls and globals that hold them. Ends silently at the
/// first value that cannot be converted and leaves all later keys as they are.
void ReadConfig(Program& p);

/// Takes every setting back from where it is held and writes it, in one replacement of the file.
std::error_code WriteConfig(Program& p);

/// AppDir\GT.cfg
std::string configPath(const Program& p);

} // namespace gatewise
