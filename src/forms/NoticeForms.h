#pragma once

#include "forms/Control.h"

namespace gatewise::forms {

struct MsgForm : Screen {
    MsgForm();
    Container BG{*this, "BG"};
    Label type_LABEL{*this, "type_LABEL", "Information"};
    Label Msg_LABEL{*this, "Msg_LABEL"};
    Label file_LABEL{*this, "file_LABEL"};
    PushButton openButton{*this, "openButton", "Open Folder"};
    SkinnedButton okButton{*this, "okButton", Kind::midButton, "ok", "ok_regular"};
    SkinnedButton cancelButton{*this, "cancelButton", Kind::midButton, "cancel", "cancel_regular"};
};

struct WaitForm : Screen {
    WaitForm();
    Container BG{*this, "BG"};
    Label infoLABEL{*this, "infoLABEL", "Finding Airport"};
    Picture Dots{*this, "Dots", "\\Images\\Dot0.bmp"};
};

struct SplashForm : Screen {
    SplashForm();
    Container BG{*this, "BG"};
    Label Label1{*this, "Label1", "Loading Airports, Standby..."};
    Label Label2{*this, "Label2", "version 1.0.0"};
};

/// A plain message box: one text, one button, no skin of its own.
struct MsgBox : Screen {
    MsgBox();
    Label text{*this, "text"};
    PushButton okButton{*this, "okButton", "OK"};
};

} // namespace gatewise::forms
