#include "pages/PlanCharts.h"

#include "pages/Pictures.h"
#include "pages/Placement.h"
#include "pages/Screens.h"
#include "plan/PlanCharts.h"

namespace gatewise {

void drawCharts(Program& p) {
    p.forms.PlanCharts.profileChart.drawing = profileDrawing(p.session.plan.plan);
    p.forms.PlanCharts.mapChart.drawing = mapDrawing(p.session.plan.plan);
}

void showCharts(Program& p) {
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
    charts.BG.on(Event::Move, [&charts] { restorePictures(charts); });
}

} // namespace gatewise
