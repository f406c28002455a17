#include "forms/PlanForms.h"

namespace gatewise::forms {

ViewPlan::ViewPlan()
    : Screen("ViewPlan", "Gatewise Terminal - Flight Plan", 620, 440, "\\Images\\Dispatch_BG.bmp") {
    PlanList.columns.push_back({"ID", 10.0 / 88.0});
    PlanList.columns.push_back({"Name", 34.0 / 88.0});
    PlanList.columns.push_back({"Route", 10.0 / 88.0});
    PlanList.columns.push_back({"Heading", 10.0 / 88.0});
    PlanList.columns.push_back({"Distance", 10.0 / 88.0});
    PlanList.columns.push_back({"Altitude", 10.0 / 88.0});
    altNew.readOnly = true;
    chartsButton.toolTip = "Profile and map of the flight plan";
    AltUpDown.toolTip = "Use the Up/Dn arrows to set a new cruise altitude for the flight and press the "
                        "RECALC button to recalculate the flight plan.";
}

PlanCharts::PlanCharts()
    : Screen("PlanCharts", "Gatewise Terminal - Profile and Map", 440, 400, "\\Images\\Select_BG.bmp") {}

FlyForm::FlyForm()
    : Screen("FlyForm", "Gatewise Terminal - Fly Options", 620, 440, "\\Images\\Dispatch_BG.bmp") {
    PlanList.columns.push_back({"ID", 10.0 / 67.0});
    PlanList.columns.push_back({"Name", 34.0 / 67.0});
    PlanList.columns.push_back({"Route", 10.0 / 67.0});
    PlanList.columns.push_back({"Altitude", 10.0 / 67.0});
    fuelSLIDER.page = 10;
    acftEmpty_LABEL.visible = folderButton.visible = false;
    fuelSLIDER.toolTip = "Select fuel percentage by sliding pointer left or right";
}

} // namespace gatewise::forms
