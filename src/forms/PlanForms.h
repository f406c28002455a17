#pragma once

#include "forms/Control.h"

namespace gatewise::forms {

struct ViewPlan : Screen {
    ViewPlan();
    Container BG{*this, "BG"};
    Label Label1{*this, "Label1", "Flight Plan"};
    SkinnedButton chartsButton{*this, "chartsButton", Kind::FormButton, "charts", "charts_regular"};
    SkinnedButton closeButton{*this, "closeButton", Kind::FormButton, "close_view", "close_regular"};
    ListView PlanList{*this, "PlanList", 588};
    TextBox altNew{*this, "altNew"};
    RangeControl AltUpDown{*this, "AltUpDown", Kind::UpDown, 500, 70000, 1000, 500};
    SkinnedButton recalcButton{*this, "recalcButton", Kind::midButton, "recalc_fltplan",
                               "sml_recalc_regular"};
    SkinnedButton removeButton{*this, "removeButton", Kind::midButton, "remove_point", "sml_remove_regular"};
    SkinnedButton printButton{*this, "printButton", Kind::midButton, "print_plan", "sml_print_regular"};
    SkinnedButton continueButton{*this, "continueButton", Kind::midButton, "continue_view",
                                 "sml_close_regular"};
};

/// Profile and map of the plan, beside its list.
struct PlanCharts : Screen {
    PlanCharts();
    Container BG{*this, "BG"};
    Label Label1{*this, "Label1", "Profile and Map"};
    SkinnedButton closeButton{*this, "closeButton", Kind::FormButton, "close_charts", "close_regular"};
    Chart profileChart{*this, "profileChart"};
    MapChart mapChart{*this, "mapChart"};
};

struct FlyForm : Screen {
    FlyForm();
    Container BG{*this, "BG"};
    Label Label1{*this, "Label1", "Gatewise Terminal - Fly Options"};
    SkinnedButton closeButton{*this, "closeButton", Kind::FormButton, "close_fly", "close_regular"};
    Label acftCaption{*this, "acftCaption", " Select Aircraft for Flight"};
    Combo acftCOMBO{*this, "acftCOMBO"};
    Label acftEmpty_LABEL{*this, "acftEmpty_LABEL"};
    PushButton folderButton{*this, "folderButton", "Choose Folder"};
    Timer scan_TIMER{*this, "scan_TIMER", 200};
    Label Label2{*this, "Label2", " Select Starting Position for Flight"};
    Combo posCOMBO{*this, "posCOMBO"};
    Label Label3{*this, "Label3", " Select Starting Waypoint (Only Available when Starting Inflight)"};
    ListView PlanList{*this, "PlanList", 588};
    Label Label4{
        *this, "Label4",
        "Adjust percentage of fuel to be onboard at start of flight by sliding the bar left or right."};
    RangeControl fuelSLIDER{*this, "fuelSLIDER", Kind::Slider, 0, 100, 1, 85};
    Label fuelPCT{*this, "fuelPCT", "85"};
    Label fuelUnit{*this, "fuelUnit", "%"};
    Check flydefaultCHECK{*this, "flydefaultCHECK", "Check to Set Flight as FS2000 Default Flight"};
    SkinnedButton continueButton{*this, "continueButton", Kind::switchButton, "continue_fly", "cont_regular"};
};

} // namespace gatewise::forms
