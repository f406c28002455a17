#pragma once

#include "plan/Editing.h"
#include "plan/PlanInput.h"
#include "plan/PlanList.h"
#include "session/Dispatch.h"
#include "session/LocaleSigns.h"
#include "session/PlanDesk.h"
#include "session/Schedule.h"
#include "session/Settings.h"
#include "work/ExportKinds.h"

#include <string>
#include <vector>

namespace gatewise {

/// What the plan of the flight on the pass is made for. The session outlives it.
PlanInput planInput(const std::string& AppDir, const Settings& settings, const Schedule& schedule,
                    const Dispatch& dispatch);

/// Retrieves the plan of the flight.
void retrievePlan(Plan& plan, const PlanInput& input);

/// The two steps before a plan leaves: the airport blocks taken again, then their runways and radios.
void preparePlan(Plan& plan, const PlanInput& input);

/// The plan for another ceiling, in feet.
void recalculateCeiling(Plan& plan, const PlanInput& input, int altitude);

/// The rows of the plan's list.
std::vector<PlanListRow> planRows(const Plan& plan, const Schedule& schedule, const Dispatch& dispatch,
                                  const Settings& settings, const NumberLocale& numbers);

/// The flight's name in every file that it leaves in.
std::string flightStem(const Schedule& schedule, const Dispatch& dispatch);

/// What the export of the flight is made of; the slices outlive it.
ExportJob exportJob(const Plan& plan, const Schedule& schedule, const Dispatch& dispatch,
                    const Settings& settings, const LocaleSigns& signs, const Machine& machine);

} // namespace gatewise
