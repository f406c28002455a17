#pragma once

#include "export/ExportCommon.h"
#include "plan/Geometry.h"

namespace gatewise {

/// The plan as an .sbp file of SquawkBox: a header and one line for each fix and top point, with speed,
/// altitudes and magnetic course of the leg that leaves it.
std::string squawkBoxPlan(const Plan& plan, const MagneticTable& magnetic, const NumberLocale& numbers);

} // namespace gatewise
