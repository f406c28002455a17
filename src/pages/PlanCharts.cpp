#include "pages/PlanCharts.h"

#include "map/PlanMap.h"
#include "pages/Maps.h"
#include "pages/Pictures.h"
#include "pages/Placement.h"
#include "pages/Screens.h"
#include "plan/PlanCharts.h"

namespace gatewise {

namespace {

/// The alternate of the flight, as the list names it. The plan itself has the one of its making: none that
/// was picked since, and that of an earlier flight where this one has none.
PlanAirport namedAlternate(const Session& s) {
    if (s.dispatch.HaveAlternate == kFalse) return {};
    const AirportRecord& airport = s.schedule.tables.airport(s.dispatch.AlternateIndex);
    const PlanAirport& made = s.plan.plan.alternateAirport;
    if (made.Icao == airport.Icao) return made;
    PlanAirport out;
    out.Icao = airport.Icao;
    out.Name = airport.Name.view();
    out.Latitude = airport.Latitude;
    out.Longitude = airport.Longitude;
    return out;
}

} // namespace

void drawCharts(Program& p) {
    auto& f = p.forms.PlanCharts;
    const Plan& plan = p.session.plan.plan;
    f.profileChart.drawing = profileDrawing(plan);
    f.profileChart.further = profileNotes(plan);
    f.mapChart.drawing = mapDrawing(plan);
    Plan shown = plan;
    shown.alternateAirport = namedAlternate(p.session);
    f.mapChart.scene = map::planScene(shown, f.mapChart.scene.land);
    f.mapChart.further = wholeScene(f.mapChart);
    markPoint(p);
}

void markPoint(Program& p) {
    auto& f = p.forms.PlanCharts;
    f.profileChart.chosen = f.mapChart.chosen = p.forms.ViewPlan.PlanList.picked;
}

void showCharts(Program& p) {
    p.forms.PlanCharts.mapChart.scene.land = shownLand(p);
    drawCharts(p);
    showScreen(p, p.forms.PlanCharts);
}

void bindPlanCharts(Program& p) {
    auto& charts = p.forms.PlanCharts;
    charts.load = [&p] { ApplySmallFontFix(p, p.forms.PlanCharts); };
    charts.activate = [&p] {
        // Beside the list where the desk has room, its left edge on the list's right one.
        p.forms.PlanCharts.left = p.forms.ViewPlan.left + p.forms.ViewPlan.width;
        p.forms.PlanCharts.top = p.forms.ViewPlan.top;
    };
    // A point picks its row of the list, and a row marks its point on both pictures.
    for (Chart* chart : {static_cast<Chart*>(&charts.profileChart), static_cast<Chart*>(&charts.mapChart)})
        chart->on(Event::Pick, [&p](const EventArgs& args) {
            p.forms.ViewPlan.PlanList.select(args.value);
            markPoint(p);
        });
    charts.BG.on(Event::Move, [&charts] { restorePictures(charts); });
}

} // namespace gatewise
