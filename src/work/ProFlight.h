#pragma once

#include "session/Dispatch.h"
#include "session/Schedule.h"
#include "session/Settings.h"
#include "work/ExportKinds.h"

#include <optional>
#include <string>

namespace gatewise {

/// FsPath\PF2000
std::string proFlightFolder(const Settings& settings);

/// Whether ProFlight 2000 has its configuration there; the warning when it has not.
std::optional<Notice> proFlightMissing(const Settings& settings);

/// Hands the flight to its configuration, with the plan's file name. The stored descent rate of the plan
/// stays positive until the plan is loaded again. A file that cannot be written is not mentioned.
void ExportPF2K(const Settings& settings, const Schedule& schedule, const Dispatch& dispatch,
                const NumberLocale& numbers, const std::string& planName, Plan& plan);

} // namespace gatewise
