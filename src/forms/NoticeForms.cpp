#include "forms/NoticeForms.h"

namespace gatewise::forms {

MsgForm::MsgForm() : Screen("MsgForm", "Gatewise Terminal - Message", 440, 340, "\\Images\\Info_BG.bmp") {
    closedBy = {&cancelButton, &okButton};
    file_LABEL.visible = openButton.visible = false;
}

WaitForm::WaitForm() : Screen("WaitForm", "Gatewise Terminal - Standby", 320, 120, "\\Images\\wait_BG.bmp") {}

SplashForm::SplashForm() : Screen("SplashForm", "Gatewise Terminal", 480, 300, "\\Images\\splash.bmp") {}

MsgBox::MsgBox() : Screen("MsgBox", "Gatewise Terminal", 320, 140, "") {
    closedBy = {&okButton};
}

} // namespace gatewise::forms
