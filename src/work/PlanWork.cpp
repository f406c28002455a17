#include "work/PlanWork.h"

#include "plan/Build.h"
#include "plan/GetFlightPlan.h"
#include "schedule/FlightTexts.h"

namespace gatewise {

PlanInput planInput(const std::string& AppDir, const Settings& settings, const Schedule& schedule,
                    const Dispatch& dispatch) {
    return {schedule.tables, dispatch.CurrentFlight, dispatch.HaveAlternate != kFalse,
            dispatch.AlternateIndex, planFiles(AppDir, settings.DataSetPath)};
}

void retrievePlan(Plan& plan, const PlanInput& input) {
    loadFlightPlan(plan, input.CurrentFlight.PlanNumber, input);
}

void preparePlan(Plan& plan, const PlanInput& input) {
    takeAirports(plan, input);
    loadAirportFacilities(plan, input);
}

void recalculateCeiling(Plan& plan, const PlanInput& input, int altitude) {
    plan.ceilingAltitude = altitude;
    recalculatePlan(plan, input, altitude);
}

std::vector<PlanListRow> planRows(const Plan& plan, const Schedule& schedule, const Dispatch& dispatch,
                                  const Settings& settings, const NumberLocale& numbers) {
    return planListRows(plan, schedule.tables, dispatch.AlternateIndex, MagneticTable(settings.FsPath),
                        numbers);
}

std::string flightStem(const Schedule& schedule, const Dispatch& dispatch) {
    return flightStem(schedule.tables, dispatch.CurrentFlight);
}

ExportJob exportJob(const Plan& plan, const Schedule& schedule, const Dispatch& dispatch,
                    const Settings& settings, const LocaleSigns& signs, const Machine& machine) {
    const DateTime now = machine.clock.now();
    return {plan,
            flightStem(schedule, dispatch),
            dispatch.HaveAlternate != kFalse,
            machine.locale.longDate(now),
            now,
            signs.numbers,
            settings.FsPath};
}

} // namespace gatewise
