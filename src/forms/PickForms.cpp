#include "forms/PickForms.h"

namespace gatewise::forms {

SelectForm::SelectForm()
    : Screen("SelectForm", "Gatewise Terminal - Select", 440, 400, "\\Images\\Select_BG.bmp") {
    List1.sorted = true;
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

} // namespace gatewise::forms
