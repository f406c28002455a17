#include "drive/Escape.h"

#include "input/UserEvents.h"

namespace gatewise::drive {

void pressEscape(Screen& screen) {
    if (screen.heedsEscape) closeWindow(screen);
}

void closeWindow(Screen& screen) {
    Control* key = screen.closingControl();
    if (key != nullptr) user::click(*key);
}

} // namespace gatewise::drive
