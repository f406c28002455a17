#pragma once

#include "export/ExportCommon.h"

namespace gatewise {

/// The plan as a .pln file of the simulator: one section "flightplan", complete.
std::string fs2000Plan(const Plan& plan, const ExportFlight& flight, const NumberLocale& numbers);

} // namespace gatewise
