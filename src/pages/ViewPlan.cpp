#include "pages/ViewPlan.h"

#include "pages/Maps.h"
#include "pages/MsgBox.h"
#include "pages/MsgForm.h"
#include "pages/Pictures.h"
#include "pages/Placement.h"
#include "pages/PlanCharts.h"
#include "plan/PrintPlan.h"
#include "work/PlanWork.h"

#include <algorithm>

namespace gatewise {

namespace {

PlanInput planInput(const Program& p) {
    const Session& s = p.session;
    return planInput(s.AppDir, s.settings, s.schedule, s.dispatch);
}

void showAltitude(forms::ViewPlan& f, int altitude) {
    f.AltUpDown.value = std::clamp(altitude, f.AltUpDown.min, f.AltUpDown.max);
    f.altNew.text = std::to_string(f.AltUpDown.value);
}

void fillPlanList(Program& p) {
    auto& f = p.forms.ViewPlan;
    const Session& s = p.session;
    f.PlanList.clear();
    for (const PlanListRow& row :
         planRows(s.plan.plan, s.schedule, s.dispatch, s.settings, s.locale.numbers)) {
        const bool bold = std::any_of(row.bold.begin(), row.bold.end(), [](bool b) { return b; });
        f.PlanList.rows.push_back({{}, {row.cells.begin(), row.cells.end()}, bold});
    }
    showAltitude(f, s.plan.plan.peakAltitude);
    drawCharts(p);
}

void loadViewPlan(Program& p) {
    auto& f = p.forms.ViewPlan;
    placeScreen(p, f);
    restorePictures(f);
}

} // namespace

void preparePlan(Program& p) {
    preparePlan(p.session.plan.plan, planInput(p));
}

void refreshShownPlan(Program& p) {
    if (p.forms.ViewPlan.visible) fillPlanList(p);
}

void showPlan(Program& p) {
    fillPlanList(p);
    showScreen(p, p.forms.ViewPlan);
}

void recalculateShownPlan(Program& p) {
    recalculateCeiling(p.session.plan.plan, planInput(p), p.forms.ViewPlan.AltUpDown.value);
    fillPlanList(p);
}

namespace {

/// Points of the plan proper, without the computed ones, up to a row of the list.
std::ptrdiff_t ownPointsBefore(const Plan& plan, int row) {
    return std::count_if(plan.points.begin(), plan.points.begin() + row,
                         [](const PlanPoint& point) { return !point.computed(); });
}

/// The point that comes after so many of the plan's own is picked, so that the next removal goes on there.
void pickOwnPoint(Program& p, std::ptrdiff_t before) {
    const Plan& plan = p.session.plan.plan;
    int row = 0;
    for (; row < plan.planLast; ++row) {
        if (!plan.at(row).computed() && before-- == 0) break;
    }
    p.forms.ViewPlan.PlanList.picked = row;
    markPoint(p);
}

} // namespace

Waited removeShownPoint(Program& p) {
    const auto& f = p.forms.ViewPlan;
    if (f.PlanList.picked < 0) return waited(p);
    PlanDesk& desk = p.session.plan;
    Plan old = desk.plan;
    const auto before = ownPointsBefore(old, std::min<int>(f.PlanList.picked, old.planLast));
    switch (removePlanPoint(desk.plan, planInput(p), f.PlanList.picked + 1, f.AltUpDown.value)) {
    case Removal::Nothing:
        break;
    case Removal::AirportRefused:
        return ShowMsgBox(p, std::string(kAirportRefusal));
    case Removal::ComputedRefused:
        return ShowMsgBox(p, std::string(kComputedRefusal));
    case Removal::Done:
        desk.before.push_back(std::move(old));
        fillPlanList(p);
        pickOwnPoint(p, before);
        break;
    }
    return waited(p);
}

void undoRemoval(Program& p) {
    PlanDesk& desk = p.session.plan;
    if (desk.before.empty()) return;
    desk.plan = std::move(desk.before.back());
    desk.before.pop_back();
    fillPlanList(p);
}

Waited printFlightPlan(Program& p) {
    const Session& s = p.session;
    const DateTime now = p.machine.clock.now();
    const std::string text =
        printFlightPlan(s.plan.plan, s.dispatch.CurrentFlight, now, p.machine.locale.shortDate(now),
                        MagneticTable(s.settings.FsPath), s.locale.numbers);
    std::vector<Drawing> drawings;
    const auto& charts = p.forms.PlanCharts;
    if (charts.visible) drawings = {charts.profileChart.whole(), paperMap(charts.mapChart.scene)};
    const auto error = p.machine.printer.print(std::string(kPrintFont), kPrintFontSize, text, drawings);
    return error ? ShowMessage(p, failure(error, "printFlightPlan")) : waited(p);
}

void bindViewPlan(Program& p) {
    auto& f = p.forms.ViewPlan;
    f.load = [&p] { loadViewPlan(p); };
    f.activate = [&p] { CenterOnMain(p, p.forms.ViewPlan); };
    f.AltUpDown.on(Event::Change, [&f] { showAltitude(f, f.AltUpDown.value); });
    f.PlanList.on(Event::Column, [&f](const EventArgs& args) { f.PlanList.resetColumn(args.value); });
    f.PlanList.on(Event::Click, [&p] { markPoint(p); });
    const auto rest = [&f] { restorePictures(f); };
    f.PlanList.on(Event::Move, rest);
    f.BG.on(Event::Move, rest);
}

} // namespace gatewise
