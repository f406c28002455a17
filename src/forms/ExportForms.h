#pragma once

#include "forms/Control.h"

namespace gatewise::forms {

struct ExportForm : Screen {
    ExportForm();
    Container BG{*this, "BG"};
    Label Label1{*this, "Label1", "Select Export Format"};
    SkinnedButton closeButton{*this, "closeButton", Kind::FormButton, "close_export", "close_regular"};
    ControlArray<SkinnedButton> exportButton = buttons(*this, "exportButton", Kind::switchButton,
                                                       {{"cont", "cont_regular", 1},
                                                        {"fs2k", "fs2k_regular", 1},
                                                        {"rc2", "rc2_regular", 1},
                                                        {"sb", "sb_regular", 1},
                                                        {"acs", "acs_regular", 1},
                                                        {"fsnav", "fsnav_regular", 1},
                                                        {"fmc", "fmc_regular", 1}});
    Frame fmcFrame{*this, "fmcFrame", "Flight Management Computer"};
    Check kf747CHECK{*this, "kf747CHECK", "Kestrelfold's 747-400 FMC"};
    Check aetiCHECK{*this, "aetiCHECK", "AETI's ProFlight 2000 FMC"};
    Check abCHECK{*this, "abCHECK", "Abacus' Corporate Pilot FMC"};
    SkinnedButton programsButton{*this, "programsButton", Kind::switchButton, "programs", "programs_regular"};
};

struct DirExportForm : Screen {
    DirExportForm();
    Container BG{*this, "BG"};
    Label Label1{*this, "Label1", "Export FS2000 Flight Plan"};
    SkinnedButton closeButton{*this, "closeButton", Kind::FormButton, "close_direx", "close_regular"};
    PathList Drive1{*this, "Drive1", Kind::DriveList};
    PathList Dir1{*this, "Dir1", Kind::FolderList};
    PathList File1{*this, "File1", Kind::FileList};
    Label Label2{*this, "Label2", "File name"};
    TextBox filenameTEXT{*this, "filenameTEXT"};
    Label Label3{*this, "Label3", "Type"};
    Combo fileTypeCOMBO{*this, "fileTypeCOMBO"};
    SkinnedButton selectButton{*this, "selectButton", Kind::switchButton, "export", "export_regular"};
};

} // namespace gatewise::forms
