#include "forms/SettingsForms.h"

namespace gatewise::forms {

SettingsForm::SettingsForm()
    : Screen("SettingsForm", "Gatewise Terminal - Settings", 620, 456, "\\Images\\Settings_BG.bmp") {}

OptionsForm::OptionsForm()
    : Screen("OptionsForm", "Gatewise Terminal - Status Board Options", 440, 400, "\\Images\\Select_BG.bmp") {
}

DirForm::DirForm()
    : Screen("DirForm", "Gatewise Terminal - Select FS2002 Path", 460, 400, "\\Images\\Dir_BG.bmp") {
    File1.pattern = "*.exe";
}

} // namespace gatewise::forms
