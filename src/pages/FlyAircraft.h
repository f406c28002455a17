#pragma once

#include "pages/Screens.h"

namespace gatewise {

/// How a scan came to its end: Left, when the pilot closed the screen before it did, or the program ended.
enum class [[nodiscard]] Scanned{Done, Left};

/// Fills the list of aircraft when the simulator's folder is another one than at the last time: aircraft that
/// are installed meanwhile count from the next start. The folder is looked through while the screen stands
/// and tells how far it is; what was found so far of a scan that was left is thrown away.
Scanned fillAircraft(Program& p);

/// The key to the simulator's folder, and the progress of a scan.
void bindFlyAircraft(Program& p);

} // namespace gatewise
