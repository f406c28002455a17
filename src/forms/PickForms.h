#pragma once

#include "forms/Control.h"

namespace gatewise::forms {

/// One flight with everything known about it; drawn when `pointer` is set.
struct FlightInfo : Control {
    explicit FlightInfo(Screen& s) : Control(s, "FlightInfo1", Kind::FlightInfo), own(s) {}
    Screen& own;
    int State = 0; // 0: pointer counts in DepartureFlights, 1: in BoardFlights
    std::string pointer;
    std::string data;
    std::string pos;
    Label flight_info{own, "FlightInfo1.flight_info"};
    Label origin{own, "FlightInfo1.origin"};
    Label arrival{own, "FlightInfo1.arrival"};
    Label originCaption{own, "FlightInfo1.originCaption", "Origin"};
    Label arrivalCaption{own, "FlightInfo1.arrivalCaption", "Destination"};
    Label deptCaption{own, "FlightInfo1.deptCaption", "Departs"};
    Label dept_time{own, "FlightInfo1.dept_time"};
    Label arrtCaption{own, "FlightInfo1.arrtCaption", "Arrives"};
    Label arr_time{own, "FlightInfo1.arr_time"};
    Label milesCaption{own, "FlightInfo1.milesCaption", "Miles"};
    Label miles{own, "FlightInfo1.miles"};
    Label classCaption{own, "FlightInfo1.classCaption", "Class"};
    Label Class{own, "FlightInfo1.Class"};
    Label mealCaption{own, "FlightInfo1.mealCaption", "Meal"};
    Label meal{own, "FlightInfo1.meal"};
    Label mondayCaption{own, "FlightInfo1.mondayCaption", "Mon"};
    Label monday_label{own, "FlightInfo1.monday_label"};
    Label tuesdayCaption{own, "FlightInfo1.tuesdayCaption", "Tue"};
    Label tuesday_label{own, "FlightInfo1.tuesday_label"};
    Label wednesdayCaption{own, "FlightInfo1.wednesdayCaption", "Wed"};
    Label wednesday_label{own, "FlightInfo1.wednesday_label"};
    Label thursdayCaption{own, "FlightInfo1.thursdayCaption", "Thu"};
    Label thursday_label{own, "FlightInfo1.thursday_label"};
    Label fridayCaption{own, "FlightInfo1.fridayCaption", "Fri"};
    Label friday_label{own, "FlightInfo1.friday_label"};
    Label saturdayCaption{own, "FlightInfo1.saturdayCaption", "Sat"};
    Label saturday_label{own, "FlightInfo1.saturday_label"};
    Label sundayCaption{own, "FlightInfo1.sundayCaption", "Sun"};
    Label sunday_label{own, "FlightInfo1.sunday_label"};
    HitArea mouseover{own, "FlightInfo1.mouseover"};
};

struct SelectForm : Screen {
    SelectForm();
    Container BG{*this, "BG"};
    Label Label1{*this, "Label1", "Select Departure Airport"};
    SkinnedButton closeButton{*this, "closeButton", Kind::FormButton, "close_select", "close_regular"};
    ListBox List1{*this, "List1"};
    Label empty_LABEL{*this, "empty_LABEL",
                      "Nothing matches.  Close this list and search for another name, city or code."};
    SkinnedButton selectButton{*this, "selectButton", Kind::switchButton, "select", "select_disabled", 0};
};

struct FlightForm : Screen {
    FlightForm();
    Container BG{*this, "BG"};
    Label Label1{*this, "Label1", "Flight Dispatch"};
    SkinnedButton closeButton{*this, "closeButton", Kind::FormButton, "close_dispatch", "close_regular"};
    ListView FlightList{*this, "FlightList", 588};
    SkinnedButton infoButton{*this, "infoButton", Kind::switchButton, "info", "info_disabled", 0};
    SkinnedButton flightButton{*this, "flightButton", Kind::switchButton, "selflt", "selflt_disabled", 0};
};

struct InfoForm : Screen {
    InfoForm();
    Container BG{*this, "BG"};
    Label Label1{*this, "Label1", "Flight Information "};
    forms::FlightInfo FlightInfo1{*this};
    SkinnedButton closeButton{*this, "closeButton", Kind::switchButton, "close", "bclose_regular"};
};

/// All destinations of the departure airport on a map, and as a list.
struct RoutesForm : Screen {
    RoutesForm();
    Container BG{*this, "BG"};
    Label Label1{*this, "Label1", "Routes"};
    SkinnedButton closeButton{*this, "closeButton", Kind::FormButton, "close_routes", "close_regular"};
    MapChart map{*this, "map"};
    Label hover_LABEL{*this, "hover_LABEL"};
    ListView routesList{*this, "routesList", 588};
};

} // namespace gatewise::forms
