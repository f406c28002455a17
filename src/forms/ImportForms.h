#pragma once

#include "forms/Control.h"

namespace gatewise::forms {

/// Makes a set of schedules from downloaded tables.
struct ImportForm : Screen {
    ImportForm();
    Container BG{*this, "BG"};
    Label Label1{*this, "Label1", "Import Schedules"};
    SkinnedButton closeButton{*this, "closeButton", Kind::FormButton, "close_import", "close_regular"};
    Label Label2{*this, "Label2", " Folder or file with downloaded tables"};
    TextBox sourceTEXT{*this, "sourceTEXT"};
    PushButton addButton{*this, "addButton", "Add"};
    PushButton folderButton{*this, "folderButton", "Folder..."};
    PushButton fileButton{*this, "fileButton", "File..."};
    ListView sourceList{*this, "sourceList", 588};
    PushButton removeButton{*this, "removeButton", "Remove"};
    Label Label3{*this, "Label3", " Name of the schedule set"};
    TextBox nameTEXT{*this, "nameTEXT"};
    Label progress_LABEL{*this, "progress_LABEL"};
    ProgressBar progressBAR{*this, "progressBAR"};
    TextBox reportTEXT{*this, "reportTEXT"};
    PushButton cancelButton{*this, "cancelButton", "Cancel"};
    PushButton startButton{*this, "startButton", "Start"};
    Timer progressTimer{*this, "progressTimer", 200};
};

} // namespace gatewise::forms
