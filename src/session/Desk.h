#pragma once

#include "session/Flag.h"

#include <string>

namespace gatewise {

/// What the screens remember between two events.
struct Desk {
    Flag StartupDone = kFalse;
    std::string MessageMode; // "regular", "del_log", "path", "fly_now"
    std::string ErrorText;   // description of the last failure, for the message that tells it
    int HelpPage = 0;
    Flag DragActive = kFalse;
    int DragX = 0, DragY = 0;           // pixels of the main screen's ground
    std::string ExportKind;             // what the file picker was opened for
    std::string failedKind, failedName; // of the last export that did not stand: its name is proposed again
    std::string shownFile;              // of the message in front, or of the last one
};

} // namespace gatewise
