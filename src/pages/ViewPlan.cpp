#include "pages/ViewPlan.h"

#include "pages/MsgForm.h"
#include "pages/Pictures.h"
#include "pages/Placement.h"
#include "pages/PlanCharts.h"
#include "pages/Screens.h"
#include "plan/Build.h"
#include "plan/Editing.h"
#include "plan/GetFlightPlan.h"
#include "plan/PlanCharts.h"
#include "plan/PlanList.h"
#include "plan/PrintPlan.h"

#include <algorithm>

namespace gatewise {

namespace {

PlanInput planInput(const Program& p) {
    return {p.g.tables, p.g.CurrentFlight, p.g.HaveAlternate != kFalse, p.g.AlternateIndex,
            planFiles(p.g.AppDir, p.g.DataSetPath)};
}

void showAltitude(forms::ViewPlan& f, int altitude) {
    f.AltUpDown.value = std::clamp(altitude, f.AltUpDown.min, f.AltUpDown.max);
    f.altNew.text = std::to_string(f.AltUpDown.value);
}

void fillPlanList(Program& p) {
    auto& f = p.forms.ViewPlan;
    f.PlanList.clear();
    for (const PlanListRow& row :
         planListRows(p.g.plan, p.g.tables, p.g.AlternateIndex, MagneticTable(p.g.FsPath), p.g.numbers)) {
        const bool bold = std::any_of(row.bold.begin(), row.bold.end(), [](bool b) { return b; });
        f.PlanList.rows.push_back({{}, {row.cells.begin(), row.cells.end()}, bold});
    }
    showAltitude(f, p.g.plan.peakAltitude);
    drawCharts(p);
}

void loadViewPlan(Program& p) {
    auto& f = p.forms.ViewPlan;
    placeScreen(p, f);
    for (int i = 0; i < static_cast<int>(f.PlanList.columns.size()); ++i) f.PlanList.resetColumn(i);
    restorePictures(f);
}

} // namespace

void retrievePlan(Program& p) {
    loadFlightPlan(p.g.plan, p.g.CurrentFlight.PlanNumber, planInput(p));
}

void refreshShownPlan(Program& p) {
    if (p.forms.ViewPlan.visible) fillPlanList(p);
}

void preparePlan(Program& p) {
    const PlanInput input = planInput(p);
    takeAirports(p.g.plan, input);
    loadAirportFacilities(p.g.plan, input);
}

void showPlan(Program& p) {
    fillPlanList(p);
    showScreen(p, p.forms.ViewPlan);
}

void recalculateShownPlan(Program& p) {
    const int altitude = p.forms.ViewPlan.AltUpDown.value;
    p.g.plan.ceilingAltitude = altitude;
    recalculatePlan(p.g.plan, planInput(p), altitude);
    fillPlanList(p);
}

void removeShownPoint(Program& p) {
    const auto& f = p.forms.ViewPlan;
    if (f.PlanList.picked < 0) return;
    switch (removePlanPoint(p.g.plan, planInput(p), f.PlanList.picked + 1, f.AltUpDown.value)) {
    case Removal::Nothing:
        break;
    case Removal::AirportRefused:
        ShowMsgBox(p, std::string(kAirportRefusal));
        break;
    case Removal::ComputedRefused:
        ShowMsgBox(p, std::string(kComputedRefusal));
        break;
    case Removal::Done:
        fillPlanList(p);
        break;
    }
}

void printFlightPlan(Program& p) {
    const DateTime now = p.machine.clock.now();
    const std::string text =
        printFlightPlan(p.g.plan, p.g.CurrentFlight, now, p.machine.locale.shortDate(now),
                        MagneticTable(p.g.FsPath), p.g.numbers);
    std::vector<Drawing> drawings;
    if (p.forms.PlanCharts.visible) drawings = {profileDrawing(p.g.plan), mapDrawing(p.g.plan)};
    const auto error = p.machine.printer.print(std::string(kPrintFont), kPrintFontSize, text, drawings);
    if (error) ShowFailure(p, error, "printFlightPlan");
}

void bindViewPlan(Program& p) {
    auto& f = p.forms.ViewPlan;
    f.load = [&p] { loadViewPlan(p); };
    f.activate = [&p] { CenterOnMain(p, p.forms.ViewPlan); };
    f.AltUpDown.on(Event::Change, [&f] { showAltitude(f, f.AltUpDown.value); });
    f.PlanList.on(Event::Column, [&f](const EventArgs& args) { f.PlanList.resetColumn(args.value); });
    const auto rest = [&f] { restorePictures(f); };
    f.PlanList.on(Event::Move, rest);
    f.BG.on(Event::Move, rest);
}

} // namespace gatewise
