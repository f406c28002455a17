#pragma once

#include "export/ExportCommon.h"
#include "plan/Geometry.h"
#include "platform/Machine.h"

#include <optional>

namespace gatewise {

/// Checkpoints that Radar Contact takes.
inline constexpr std::size_t kMostCheckpoints = 29;

/// When the file is written, as its texts: the long date and a time such as "08:30 AM".
struct ExportMoment {
    std::string date;
    std::string time;
};

/// "08:30 AM": twelve hours, two digits each.
std::string twelveHourTime(const DateTime& moment);

/// The plan as an .apl file of Radar Contact; nothing when it has more than kMostCheckpoints checkpoints.
std::optional<std::string> rc2Plan(const Plan& plan, const ExportFlight& flight, const ExportMoment& moment,
                                   const MagneticTable& magnetic, const NumberLocale& numbers);

} // namespace gatewise
