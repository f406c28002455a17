#include "drive/Escape.h"

#include "input/UserEvents.h"

namespace gatewise::drive {

void pressEscape(Screen& screen) {
    Control* key = screen.heedsEscape ? screen.closingControl() : nullptr;
    if (key != nullptr) user::click(*key);
}

} // namespace gatewise::drive
