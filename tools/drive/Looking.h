#pragma once

#include "drive/Session.h"

namespace gatewise::drive {

/// What the machine has written down since it was last shown, as arrays; afterwards it counts as shown.
void writeSounds(Session& session, JsonWriter& json);
void writeLaunches(Session& session, JsonWriter& json);
void writePrinted(Session& session, JsonWriter& json);

} // namespace gatewise::drive
