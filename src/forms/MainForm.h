#pragma once

#include "forms/Control.h"

namespace gatewise::forms {

struct MainForm : Screen {
    MainForm();
    Container BG{*this, "BG"};
    Container main_pic{*this, "main_pic"};
    Container status_pic{*this, "status_pic"};
    Container log_pic{*this, "log_pic"};
    Label title_LABEL{*this, "title_LABEL", "Gatewise Terminal - Main Interface "};
    SkinnedButton min_button{*this, "min_button", Kind::FormButton, "min", "min_regular"};
    SkinnedButton close_button{*this, "close_button", Kind::FormButton, "close", "close_regular"};
    Label gt_hoursLABEL{*this, "gt_hoursLABEL", "00"};
    Label gt_sepLABEL{*this, "gt_sepLABEL", ":"};
    Label gt_minutesLABEL{*this, "gt_minutesLABEL", "00"};
    SkinnedButton gt_hrupButton{*this, "gt_hrupButton", Kind::FormButton, "hr_up", "plus_regular"};
    SkinnedButton gt_hrdnButton{*this, "gt_hrdnButton", Kind::FormButton, "hr_dn", "minus_regular"};
    SkinnedButton gt_minupButton{*this, "gt_minupButton", Kind::FormButton, "min_up", "plus_regular"};
    SkinnedButton gt_mindnButton{*this, "gt_mindnButton", Kind::FormButton, "min_dn", "minus_regular"};
    Label shift_LABEL{*this, "shift_LABEL"};
    PushButton nowButton{*this, "nowButton", "Now"};
    ControlArray<Label> clock_time = labels(*this, "clock_time", 3, "00:00");
    ControlArray<Label> cityTime = labels(*this, "cityTime", 4);
    SkinnedButton timeSwitch{*this, "timeSwitch", Kind::FormButton, "time", "switch_regular"};
    Label main_LABEL{*this, "main_LABEL", "Main"};
    Label statusboard_LABEL{*this, "statusboard_LABEL", "Status Board"};
    Label log_LABEL{*this, "log_LABEL", "LogBook"};
    Label pf2k_LABEL{*this, "pf2k_LABEL", "ProFlight 2K"};
    Label export_LABEL{*this, "export_LABEL", "Export"};
    Label Label14{*this, "Label14", " Departure Airport"};
    TextBox departureText{*this, "departureText", "KATL"};
    SkinnedButton enterButton{*this, "enterButton", Kind::FormButton, "enter", "enter_regular"};
    Label Label12{*this, "Label12", " Information"};
    Label infoLABEL{*this, "infoLABEL"};
    ControlArray<SkinnedButton> FlatButton = buttons(*this, "FlatButton", Kind::FlatButton,
                                                     {{"print", "print_dis", 0},
                                                      {"settings", "settings_reg", 1},
                                                      {"help", "help_reg", 1},
                                                      {"fly", "fly_dis", 0},
                                                      {"exit", "exit_reg", 1}});
    Label Label4{*this, "Label4", "Select Schedule Set"};
    Combo routeCombo{*this, "routeCombo"};
    PushButton importButton{*this, "importButton", "Import..."};
    Label Label3{*this, "Label3", "Select Travel Day of the Week"};
    Combo dayCombo{*this, "dayCombo"};
    Label Label1{*this, "Label1", "Departure Airport"};
    Label dept_LABEL{*this, "dept_LABEL"};
    Label Label33{*this, "Label33",
                  "Use this section to select Destination Airport directly.  Flights can also be selected on "
                  "the Status Board."};
    Label Label2{*this, "Label2", "Destination Airport"};
    Label arr_LABEL{*this, "arr_LABEL"};
    Label Label30{*this, "Label30", "Search For..."};
    TextBox arrSearch{*this, "arrSearch"};
    SkinnedButton routesButton{*this, "routesButton", Kind::FormButton, "routes", "map_regular"};
    SkinnedButton arrivalButton{*this, "arrivalButton", Kind::switchButton, "arr", "arr_disabled", 0};
    Label Label13{*this, "Label13", "Alternate Airport (Optional)"};
    Label alt_LABEL{*this, "alt_LABEL"};
    Label Label31{*this, "Label31", "Search For..."};
    TextBox altSearch{*this, "altSearch"};
    SkinnedButton alternateButton{*this, "alternateButton",    Kind::switchButton,
                                  "alt", "alternate_disabled", 0};
    SkinnedButton viewButton{*this, "viewButton", Kind::switchButton, "viewpln", "viewpln_disabled", 0};
    SkinnedButton newButton{*this, "newButton", Kind::switchButton, "newpln", "newpln_disabled", 0};
    SkinnedButton sendlogButton{*this, "sendlogButton", Kind::switchButton, "log", "send_disabled", 0};
    Label Label5{*this, "Label5", "BOARDING AUTHORITY"};
    Label Label6{*this, "Label6", "ELECTRONIC TICKET"};
    Label Label7{*this, "Label7", "BOARDING AUTHORITY"};
    Label nameLABEL_1{*this, "nameLABEL_1"};
    Label Label8{*this, "Label8", "2 004 4729472580 1"};
    Label Label9{*this, "Label9", "Origin"};
    Label originLABEL_1{*this, "originLABEL_1"};
    Label Label10{*this, "Label10", "Destination"};
    Label destLABEL_1{*this, "destLABEL_1"};
    Label Label11{*this, "Label11", "SEAT"};
    Label seatLABEL_1{*this, "seatLABEL_1"};
    Label Label15{*this, "Label15", "Flight"};
    Label fltLABEL_1{*this, "fltLABEL_1"};
    Label Label16{*this, "Label16", "Date"};
    Label dateLABEL_1{*this, "dateLABEL_1"};
    Label Label17{*this, "Label17", "Class"};
    Label classLABEL{*this, "classLABEL"};
    Label Label18{*this, "Label18", "Departs"};
    Label timeLABEL{*this, "timeLABEL"};
    Label Label19{*this, "Label19", "Arrives"};
    Label arrtimeLABEL{*this, "arrtimeLABEL"};
    Label aircraftLABEL{*this, "aircraftLABEL"};
    Label Label20{*this, "Label20", "Meal:"};
    Label mealLABEL{*this, "mealLABEL"};
    Label carrierLABEL_1{*this, "carrierLABEL_1"};
    Label Label21{*this, "Label21", "* * * * * * *  ET  * * * * * * *"};
    Label nameLABEL_2{*this, "nameLABEL_2"};
    Label Label22{*this, "Label22", "Origin"};
    Label originLABEL_2{*this, "originLABEL_2"};
    Label Label23{*this, "Label23", "Destination"};
    Label destLABEL_2{*this, "destLABEL_2"};
    Label Label24{*this, "Label24", "Flight"};
    Label fltLABEL_2{*this, "fltLABEL_2"};
    Label Label25{*this, "Label25", "Date"};
    Label dateLABEL_2{*this, "dateLABEL_2"};
    Label Label26{*this, "Label26", "SEAT"};
    Label seatLABEL_2{*this, "seatLABEL_2"};
    Label Label32{*this, "Label32", "Operated by"};
    Label carrierLABEL_2{*this, "carrierLABEL_2"};
    Picture headerPICTURE{*this, "headerPICTURE", "\\Images\\Status\\header_dept.bmp"};
    Label header_LABEL{*this, "header_LABEL"};
    ControlArray<Label> fltnum_LABEL = labels(*this, "fltnum_LABEL", 20, " ");
    ControlArray<Label> city_LABEL = labels(*this, "city_LABEL", 20, " ");
    ControlArray<Label> time_LABEL = labels(*this, "time_LABEL", 20, " ");
    ControlArray<Label> status_LABEL = labels(*this, "status_LABEL", 20, " ");
    Label boardPage_LABEL{*this, "boardPage_LABEL"};
    Label boardEmpty_LABEL{*this, "boardEmpty_LABEL"};
    PushButton anyDayButton{*this, "anyDayButton", "Show Any Day"};
    ControlArray<SkinnedButton> boardButton = buttons(*this, "boardButton", Kind::boardButton,
                                                      {{"prev1", "prev1_regular", 1},
                                                       {"next1", "next1_regular", 1},
                                                       {"prev1", "prev1_regular", 1},
                                                       {"next1", "next1_regular", 1}});
    ControlArray<SkinnedButton> switchButton = buttons(*this, "switchButton", Kind::switchButton,
                                                       {{"airline", "airline_regular", 1},
                                                        {"switch", "switch_arr_regular", 1},
                                                        {"options", "options_regular", 1}});
    Label log_pilotName{*this, "log_pilotName"};
    Label curPage{*this, "curPage", "1"};
    Label pageMAX{*this, "pageMAX", "1"};
    Label logEmpty_LABEL{*this, "logEmpty_LABEL",
                         "No entry yet.  Put a flight on the boarding pass and press Send to Log Book."};
    ControlArray<Label> dept_back = labels(*this, "dept_back", 6);
    ControlArray<Label> log_dept = labels(*this, "log_dept", 6);
    ControlArray<Label> log_arr = labels(*this, "log_arr", 6);
    ControlArray<Label> pic_notes = labels(*this, "pic_notes", 6);
    ControlArray<Label> log_instline = labels(*this, "log_instline", 6);
    ControlArray<Label> log_picline = labels(*this, "log_picline", 6);
    ControlArray<HitArea> log_press{
        0, 6, [this](int i) { return std::make_unique<HitArea>(*this, "log_press", i); }};
    Label pic_pageinst{*this, "pic_pageinst", "0.0"};
    Label pic_pagepic{*this, "pic_pagepic", "0.0"};
    Label pic_previnst{*this, "pic_previnst", "0.0"};
    Label pic_prevpic{*this, "pic_prevpic", "0.0"};
    Label pic_totinst{*this, "pic_totinst", "0.0"};
    Label pic_totpic{*this, "pic_totpic", "0.0"};
    ControlArray<SkinnedButton> logButton = buttons(*this, "logButton", Kind::switchButton,
                                                    {{"edit", "edit_regular", 0},
                                                     {"delete", "delete_regular", 0},
                                                     {"prev", "prev_regular", 1},
                                                     {"next", "next_regular", 1}});
    SkinnedButton logcsvButton{*this, "logcsvButton", Kind::FormButton, "log_csv", "csv_regular"};
    SkinnedButton logprintButton{*this, "logprintButton", Kind::FormButton, "log_print", "paper_regular"};
    SkinnedButton careerButton{*this, "careerButton", Kind::FormButton, "career", "career_regular"};
    SkinnedButton boardroutesButton{*this, "boardroutesButton", Kind::FormButton, "routes", "map_regular"};
    Timer GTclock_Timer{*this, "GTclock_Timer", 500};
    Timer timeCheck_Timer{*this, "timeCheck_Timer", 5000};
    Timer update_TIMER{*this, "update_TIMER", 60000};
    Timer FlashTimer{*this, "FlashTimer", 500};
    Timer fade_timer{*this, "fade_timer", 100};
    Timer play1Timer{*this, "play1Timer", 15000};
    Timer play2Timer{*this, "play2Timer", 15000};
    Timer play3Timer{*this, "play3Timer", 15000};
    Timer waitPlayTimer{*this, "waitPlayTimer", 5000};
    Timer mouse_Timer{*this, "mouse_Timer", 250};
};

} // namespace gatewise::forms
