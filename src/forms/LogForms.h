#pragma once

#include "forms/Control.h"

namespace gatewise::forms {

struct LogEntry : Screen {
    LogEntry();
    Container BG{*this, "BG"};
    Label titleLABEL{*this, "titleLABEL", "Log Book Entry"};
    SkinnedButton closeButton{*this, "closeButton", Kind::FormButton, "close_log", "close_regular"};
    Label dateCaption{*this, "dateCaption", "Date"};
    Label date_LABEL{*this, "date_LABEL"};
    Label aircraftCaption{*this, "aircraftCaption", "Aircraft"};
    Label aircraft_LABEL{*this, "aircraft_LABEL"};
    Label deptCaption{*this, "deptCaption", "Departure"};
    Label dept_LABEL{*this, "dept_LABEL"};
    Label destCaption{*this, "destCaption", "Destination"};
    Label dest_LABEL{*this, "dest_LABEL"};
    Frame timesFrame{*this, "timesFrame", "Times"};
    Frame hoursFrame{*this, "hoursFrame", "Hours"};
    Label timeHead1{*this, "timeHead1", "Scheduled"};
    Label timeHead2{*this, "timeHead2", "Actual"};
    Label timeHead3{*this, "timeHead3", "Difference"};
    Label rowDept{*this, "rowDept", "Departure"};
    Label rowArr{*this, "rowArr", "Arrival"};
    Label depttime_LABEL{*this, "depttime_LABEL"};
    Label ACTdepttime_LABEL{*this, "ACTdepttime_LABEL"};
    Label DIFFdepttime_LABEL{*this, "DIFFdepttime_LABEL"};
    Label arrtime_LABEL{*this, "arrtime_LABEL"};
    Label ACTarrtime_LABEL{*this, "ACTarrtime_LABEL"};
    Label DIFFarrtime_LABEL{*this, "DIFFarrtime_LABEL"};
    Label dayCaption{*this, "dayCaption", "Day"};
    Label day_LABEL{*this, "day_LABEL"};
    Label nightCaption{*this, "nightCaption", "Night"};
    Label night_LABEL{*this, "night_LABEL"};
    Label instCaption{*this, "instCaption", "Instrument"};
    Label inst_LABEL{*this, "inst_LABEL"};
    Label totalCaption{*this, "totalCaption", "Total"};
    Label total_LABEL{*this, "total_LABEL"};
    Label notesCaption{*this, "notesCaption", "Remarks"};
    TextBox notes{*this, "notes"};
    SkinnedButton saveButton{*this, "saveButton", Kind::switchButton, "save_log", "save_regular"};
    SkinnedButton close1Button{*this, "close1Button", Kind::switchButton, "close_log", "bclose_regular"};
};

/// What the pilot has flown: sums, bars, the map of all routes. Other log books are looked at in the place of
/// these, and taken over.
struct CareerForm : Screen {
    CareerForm();
    Container BG{*this, "BG"};
    Container flown_pic{*this, "flown_pic"};
    Container preview_pic{*this, "preview_pic"};
    Label Label1{*this, "Label1", "Career"};
    SkinnedButton copyButton{*this, "copyButton", Kind::FormButton, "career_copy", "copy_regular"};
    SkinnedButton pngButton{*this, "pngButton", Kind::FormButton, "career_png", "image_regular"};
    SkinnedButton pdfButton{*this, "pdfButton", Kind::FormButton, "career_pdf", "file_regular"};
    SkinnedButton printButton{*this, "printButton", Kind::FormButton, "career_print", "sheet_regular"};
    SkinnedButton closeButton{*this, "closeButton", Kind::FormButton, "close_career", "close_regular"};
    Label yearCaption{*this, "yearCaption", "Year"};
    Combo yearCOMBO{*this, "yearCOMBO"};
    Label aircraftCaption{*this, "aircraftCaption", "Aircraft"};
    Combo aircraftCOMBO{*this, "aircraftCOMBO"};
    Label airlineCaption{*this, "airlineCaption", "Airline"};
    Combo airlineCOMBO{*this, "airlineCOMBO"};
    ListView totals{*this, "totals", 280};
    MapChart map{*this, "map"};
    Chart bars{*this, "bars"};
    Label hover_LABEL{*this, "hover_LABEL"};
    ListView previewList{*this, "previewList", 588};
    Label sourceCaption{*this, "sourceCaption", "Log book of another program (its file)"};
    TextBox sourceTEXT{*this, "sourceTEXT"};
    PushButton importButton{*this, "importButton", "Look at it"};
    PushButton takeButton{*this, "takeButton", "Take over"};
    PushButton cancelButton{*this, "cancelButton", "Cancel"};
    PushButton undoButton{*this, "undoButton", "Undo import"};
    Label preview_LABEL{*this, "preview_LABEL"};
};

struct ClockForm : Screen {
    ClockForm();
    Container BG{*this, "BG"};
    Label Label1{*this, "Label1", "Set Deptarture Time"};
    Label hours_LABEL{*this, "hours_LABEL", "00"};
    Label gt_sepLABEL{*this, "gt_sepLABEL", ":"};
    Label minutes_LABEL{*this, "minutes_LABEL", "00"};
    SkinnedButton time_hrupButton{*this, "time_hrupButton", Kind::FormButton, "timeHr_up", "plus_regular"};
    SkinnedButton time_hrdnButton{*this, "time_hrdnButton", Kind::FormButton, "timeHr_dn", "minus_regular"};
    SkinnedButton time_minupButton{*this, "time_minupButton", Kind::FormButton, "timeMin_up", "plus_regular"};
    SkinnedButton time_mindnButton{*this, "time_mindnButton", Kind::FormButton, "timeMin_dn",
                                   "minus_regular"};
    Label Label2{*this, "Label2", "RETURN"};
};

} // namespace gatewise::forms
