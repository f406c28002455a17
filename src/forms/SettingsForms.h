#pragma once

#include "forms/Control.h"

namespace gatewise::forms {

struct SettingsForm : Screen {
    SettingsForm();
    Container BG{*this, "BG"};
    Label titleLABEL{*this, "titleLABEL", "Settings"};
    SkinnedButton closeButton{*this, "closeButton", Kind::FormButton, "close_set", "close_regular"};
    Label Label1{*this, "Label1", " Pilot's First Name"};
    TextBox firstTEXT{*this, "firstTEXT"};
    Label Label2{*this, "Label2", " Pilot's Last Name"};
    TextBox lastTEXT{*this, "lastTEXT"};
    Label Label3{*this, "Label3", " Path the Flight Simulator 2000"};
    Label fspathLABEL{*this, "fspathLABEL"};
    SkinnedButton pathButton{*this, "pathButton", Kind::switchButton, "path", "path_regular"};
    Label Label4{*this, "Label4", "Home Airport"};
    Label homeLABEL{*this, "homeLABEL"};
    Label Label5{*this, "Label5", "Enter IATA, ICAO, Name, or City"};
    TextBox searchText{*this, "searchText"};
    SkinnedButton homeButton{*this, "homeButton", Kind::switchButton, "home", "home_regular"};
    Label Label6{*this, "Label6", "Default Airline"};
    Label airlineLABEL{*this, "airlineLABEL"};
    Label Label7{*this, "Label7", "Enter Name or Code"};
    TextBox airlineSearchTEXT{*this, "airlineSearchTEXT"};
    SkinnedButton airlineSearchButton{*this, "airlineSearchButton", Kind::switchButton, "air_search",
                                      "selair_regular"};
    Check anyairlineCHECK{*this, "anyairlineCHECK", "Default Airline as 'Any Airline'"};
    Check statusboardCHECK{*this, "statusboardCHECK", "Start Gatewise Terminal on the Status Board"};
    Check homeDestCHECK{*this, "homeDestCHECK", "Always Set Home Apt to Last Destination Airport"};
    Check homeDeptCHECK{*this, "homeDeptCHECK", "Always Set Home Apt to Last Departure Airport"};
    Check altCHECK{*this, "altCHECK", "Automatically Find Alternate Airport"};
    Label Label8{*this, "Label8", " Minimum Distance from Destination"};
    Combo altdistCOMBO{*this, "altdistCOMBO"};
    Label Label9{*this, "Label9", " Start Flight/Adventure"};
    Combo preflightCOMBO{*this, "preflightCOMBO"};
    Label Label10{*this, "Label10", " Minutes prior to Departure Time"};
    Label Label11{*this, "Label11", " ProFlight 2000 Options"};
    Check pf2_FltNumCHECK{*this, "pf2_FltNumCHECK", "Send FLT Number"};
    Check pf2_CallsignCHECK{*this, "pf2_CallsignCHECK", "Send Airline Callsign"};
    Check returnCHECK{*this, "returnCHECK", "Come Back to Where I Left"};
    SkinnedButton continueButton{*this, "continueButton", Kind::switchButton, "continue_set",
                                 "bclose_regular"};
};

struct OptionsForm : Screen {
    OptionsForm();
    Container BG{*this, "BG"};
    Label titleLABEL{*this, "titleLABEL", "Status Board Options"};
    SkinnedButton closeButton{*this, "closeButton", Kind::FormButton, "close_opt", "close_regular"};
    Label Label1{*this, "Label1", " Play Departure Announcements"};
    Label Label2{*this, "Label2", " Play Arrival Announcements"};
    Check d1_CHECK{*this, "d1_CHECK", "Now Boarding"};
    Check d2_CHECK{*this, "d2_CHECK", "Final Call"};
    Check d3_CHECK{*this, "d3_CHECK", "Departing"};
    Check a1_CHECK{*this, "a1_CHECK", "Landing Soon"};
    Check a2_CHECK{*this, "a2_CHECK", "Now Arriving"};
    Check a3_CHECK{*this, "a3_CHECK", "Gate Attendant"};
    Frame Frame1{*this, "Frame1", "Status Board Sorting Options"};
    Option fltnumOption{*this, "fltnumOption", "Sort by Flight Number"};
    Option timeOption{*this, "timeOption", "Sort by Departure or Arrival Time"};
    Option cityOption{*this, "cityOption", "Sort by Departure or Arrival City"};
    Label Label3{*this, "Label3", " Ambience Volume Level"};
    SkinnedButton volDN{*this, "volDN", Kind::FormButton, "vol_dn", "minus_regular"};
    Label ambVol{*this, "ambVol", "100"};
    SkinnedButton volUP{*this, "volUP", Kind::FormButton, "vol_up", "plus_regular"};
    Label Label4{*this, "Label4", " Announcement Volume Level"};
    SkinnedButton annDN{*this, "annDN", Kind::FormButton, "ann_dn", "minus_regular"};
    Label annVol{*this, "annVol", "100"};
    SkinnedButton annUP{*this, "annUP", Kind::FormButton, "ann_up", "plus_regular"};
    Check muteCHECK{*this, "muteCHECK", "Mute All Sounds"};
    SkinnedButton continueButton{*this, "continueButton", Kind::switchButton, "continue_opt", "cont_regular"};
};

struct DirForm : Screen {
    DirForm();
    Container Picture1{*this, "Picture1"};
    Label titleLABEL{*this, "titleLABEL", "Select FS2002 Path"};
    SkinnedButton closeButton{*this, "closeButton", Kind::FormButton, "close_dir", "close_regular"};
    PathList Drive1{*this, "Drive1", Kind::DriveList};
    PathList Dir1{*this, "Dir1", Kind::FolderList};
    PathList File1{*this, "File1", Kind::FileList};
    Label seek_LABEL{*this, "seek_LABEL", "Looking for the folder of FS2002.exe.  Likely places:"};
    Combo placesCOMBO{*this, "placesCOMBO"};
    SkinnedButton selectButton{*this, "selectButton", Kind::switchButton, "select_dir", "select_disabled", 0};
};

} // namespace gatewise::forms
