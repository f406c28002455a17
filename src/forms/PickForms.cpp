#include "forms/PickForms.h"

namespace gatewise::forms {

SelectForm::SelectForm()
    : Screen("SelectForm", "Gatewise Terminal - Select", 440, 400, "\\Images\\Select_BG.bmp") {
    List1.sorted = true;
    empty_LABEL.visible = false;
}

FlightForm::FlightForm()
    : Screen("FlightForm", "Gatewise Terminal - Flight Dispatch", 620, 440, "\\Images\\Dispatch_BG.bmp") {
    FlightList.columns.push_back({"Flight", 12.0 / 80.0});
    FlightList.columns.push_back({"Equipment", 44.0 / 80.0});
    FlightList.columns.push_back({"Departs", 10.0 / 80.0});
    FlightList.columns.push_back({"Arrives", 10.0 / 80.0});
}

InfoForm::InfoForm()
    : Screen("InfoForm", "Gatewise Terminal - Flight Information", 440, 340, "\\Images\\Info_BG.bmp") {}

RoutesForm::RoutesForm()
    : Screen("RoutesForm", "Gatewise Terminal - Routes", 620, 440, "\\Images\\Dispatch_BG.bmp") {
    routesList.columns.push_back({"Destination", 0.46});
    routesList.columns.push_back({"Miles", 0.18});
    routesList.columns.push_back({"Flights", 0.18});
    routesList.columns.push_back({"Next", 0.18});
}

} // namespace gatewise::forms
