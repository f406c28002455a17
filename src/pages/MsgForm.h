#pragma once

#include "pages/Screens.h"
#include "work/Notices.h"

#include <string>
#include <vector>

namespace gatewise {

/// Says a message on the message screen and returns when it has been answered. Another heading than the two
/// keeps the one that stands; a number that is no message keeps text and mode. When the message screen is up
/// already, only its texts change.
Waited ShowMessage(Program& p, const Notice& notice);
Waited ShowMessage(Program& p, Heading heading, Message message);

/// Opens the folder of the file that the message tells of.
void openWrittenFolder(Program& p);

/// The messages one after the other; none behind one that the program ended in.
Waited ShowMessages(Program& p, const std::vector<Notice>& notices);

void bindMsgForm(Program& p);

} // namespace gatewise
