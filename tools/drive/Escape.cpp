#include "drive/Escape.h"

#include "input/UserEvents.h"

namespace gatewise::drive {

namespace {

/// The key that closes a screen. A screen that is not listed has its closeButton.
struct CloseKey {
    const char* screen;
    const char* control; // null: Escape does nothing there
};

constexpr CloseKey kCloseKeys[] = {
    {"MainForm", nullptr},   {"MsgForm", "cancelButton"}, {"MsgForm", "okButton"},
    {"ClockForm", "Label2"}, {"MsgBox", "okButton"},
};

bool usable(const Control& control) {
    if (!control.visible || !control.enabled) return false;
    if (control.kind < Kind::FlatButton || control.kind > Kind::midButton) return true;
    const auto& button = static_cast<const SkinnedButton&>(control);
    return !button.hasState() || button.State == 1;
}

Control* closeKey(const Screen& screen) {
    bool listed = false;
    for (const CloseKey& row : kCloseKeys) {
        if (screen.name != row.screen) continue;
        listed = true;
        Control* control = row.control == nullptr ? nullptr : screen.find(row.control);
        if (control != nullptr && usable(*control)) return control;
    }
    Control* close = listed ? nullptr : screen.find("closeButton");
    return close != nullptr && usable(*close) ? close : nullptr;
}

} // namespace

void pressEscape(Screen& screen) {
    if (Control* key = closeKey(screen)) user::click(*key);
}

} // namespace gatewise::drive
