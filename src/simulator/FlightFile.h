#pragma once

#include "plan/PlanTable.h"
#include "platform/Numbers.h"
#include "platform/Profile.h"
#include "schedule/Records.h"
#include "simulator/StartPosition.h"

#include <string>
#include <string_view>
#include <system_error>
#include <vector>

// The situation file: a copy of the template Data\default.FLT in which the keys of the flight are set. Each
// group of keys is made by itself and returns its keys in the order of writing; nothing touches a file but
// the last two functions.

namespace gatewise {

/// All that a situation file is made of.
struct SituationInput {
    const Plan& plan;
    const FlightRecord& CurrentFlight;
    const NumberLocale& numbers;
    std::string stem;        // names the flight in every file
    std::string StartChoice; // the picked entry of posCOMBO
    StartPosition start;     // as resolved
    std::string aircraft;    // the picked entry of acftCOMBO
    std::string fuelPCT;     // percentage of fuel as shown
    int PreFlight = 0;       // minutes before the departure
    int pointIndex = 0;      // point of an in-flight start
};

/// Hours and minutes as two numbers: minutes of an in-flight start may pass 59, nothing carries them over.
struct StartTime {
    int hours = 0;
    int minutes = 0;
};
StartTime startTime(const SituationInput& input);

/// One key for each point of the plan that the pilot knows; computed points have none.
struct WaypointSlots {
    std::vector<ProfileValue> keys;
    int next = 0; // waypoint behind the point of the start; 0 when that is a computed point
};
WaypointSlots waypointSlots(const Plan& plan, int pointIndex);

/// Knots at which a flight starts at a point: the speed schedule by the altitude alone, climbing or cruising.
double startSpeed(const Plan& plan, int pointIndex);

/// Autopilot on and paused, on the course of the leg that leaves the point.
std::vector<ProfileValue> autopilotKeys(const Plan& plan, int pointIndex);

/// The aircraft in steady flight at the point.
std::vector<ProfileValue> inflightKeys(const Plan& plan, int pointIndex, const NumberLocale& numbers);

/// Every key of the situation, in the order of writing; CountWP and NextWP may come twice, the later counts.
std::vector<ProfileValue> situationKeys(const SituationInput& input);

/// Copies the template with the keys set over the target, in one replacement. On an error, that of reading
/// the template or of writing the target, an old target is whole.
std::error_code WriteSituationFile(std::string_view templateFile, std::string_view target,
                                   const std::vector<ProfileValue>& keys);

/// Names the flight as the one that the simulator starts with, in fs2002.cfg below FsPath. Nothing else in
/// that file changes.
std::error_code SetDefaultFlight(std::string_view FsPath, std::string_view stem);

} // namespace gatewise
