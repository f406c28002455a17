#include "forms/SettingsForms.h"

namespace gatewise::forms {

namespace {

constexpr int kAlternateMiles[] = {5, 10, 15, 20, 25, 30, 35, 40, 45, 50, 75, 100, 150, 200, 500};
constexpr int kPreflightMinutes[] = {0, 5, 10, 15, 20, 25, 30, 35, 40, 45, 50, 55, 60};

} // namespace

SettingsForm::SettingsForm()
    : Screen("SettingsForm", "Gatewise Terminal - Settings", 620, 456, "\\Images\\Settings_BG.bmp") {
    for (const int miles : kAlternateMiles) altdistCOMBO.add(std::to_string(miles), miles);
    for (const int minutes : kPreflightMinutes) preflightCOMBO.add(std::to_string(minutes), minutes);
}

OptionsForm::OptionsForm()
    : Screen("OptionsForm", "Gatewise Terminal - Status Board Options", 440, 400, "\\Images\\Select_BG.bmp") {
}

DirForm::DirForm()
    : Screen("DirForm", "Gatewise Terminal - Select FS2002 Path", 460, 400, "\\Images\\Dir_BG.bmp") {
    File1.pattern = "*.exe";
}

} // namespace gatewise::forms
