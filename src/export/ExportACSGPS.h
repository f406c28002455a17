#pragma once

#include "export/ExportCommon.h"

namespace gatewise {

/// The plan as a .prg file of ACS-GPS: a block of five lines for each airport, fix and top point.
std::string acsGpsPlan(const Plan& plan, const NumberLocale& numbers);

} // namespace gatewise
