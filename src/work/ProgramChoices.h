#pragma once

#include "platform/Machine.h"
#include "programs/Settings.h"
#include "session/Dispatch.h"
#include "session/PlanDesk.h"
#include "session/Schedule.h"

#include <string>
#include <system_error>

namespace gatewise {

/// What the pilot chose for the programs of today, as GT.cfg keeps it.
programs::Choices readChoices(const std::string& AppDir);

/// Keeps the choices. A file that has them already is left as it is.
std::error_code writeChoices(const std::string& AppDir, const programs::Choices& choices);

/// The plan of the flight on the pass, to be sent now, with the regions of its points as far as the program's
/// folder knows them. The plan outlives the result.
programs::Dispatch programDispatch(const std::string& AppDir, const PlanDesk& desk, const Schedule& schedule,
                                   const Dispatch& dispatch, const Machine& machine);

} // namespace gatewise
