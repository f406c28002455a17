#pragma once

#include "plan/Geometry.h"
#include "plan/PlanTable.h"
#include "platform/Machine.h"
#include "platform/Numbers.h"
#include "schedule/Records.h"

#include <string>
#include <string_view>

// The plan as an airline's dispatch release: a fixed-pitch listing in numbered parts.

namespace gatewise {

inline constexpr std::string_view kPrintFont = "Courier New";
inline constexpr int kPrintFontSize = 10;

/// The whole listing, lines ended by line feeds. `date` is today, `shortDate` the same in the system's short
/// form.
std::string printFlightPlan(const Plan& plan, const FlightRecord& flight, const DateTime& date,
                            std::string_view shortDate, const MagneticTable& magnetic,
                            const NumberLocale& locale);

/// Airline code and flight number as the parts name the flight: the number trimmed, without a trailing "-".
std::string flightTag(std::string_view airlineCode, std::string_view flightNumber);

} // namespace gatewise
