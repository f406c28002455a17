#pragma once

#include "platform/Machine.h"
#include "session/Message.h"
#include "session/Settings.h"
#include "session/SimulatorHandOff.h"

#include <optional>
#include <string>

namespace gatewise {

/// Whether the simulator stands in its folder.
struct Located {
    bool found = false;
    std::optional<Notice> notice; // it is not where a path led
};

/// Finds the simulator's folder: the verified one, or the registry's.
Located LocateSimulator(const std::string& AppDir, const Registry& registry, Settings& settings);

/// Looks for ProFlight 2000 below the simulator's folder. After LocateSimulator and its message.
void findProFlight(const Settings& settings, SimulatorHandOff& simulator);

/// Whether a folder holds a file of this name.
bool holds(const std::string& folder, const char* file);

} // namespace gatewise
