#pragma once

#include "board/Clock.h"
#include "session/CareerDesk.h"
#include "session/Desk.h"
#include "session/Dispatch.h"
#include "session/Hall.h"
#include "session/LocaleSigns.h"
#include "session/LogDesk.h"
#include "session/PlanDesk.h"
#include "session/Schedule.h"
#include "session/Settings.h"
#include "session/SimulatorHandOff.h"
#include "session/StatusBoard.h"

#include <string>
#include <string_view>

namespace gatewise {

/// The pilot's session from start-up to shutdown, one slice for each subject. The fields carry the names that
/// the system's papers give to its global values, so that `global NAME` of the text driver finds each.
struct Session {
    std::string AppDir; // folder of the program
    Settings settings;
    Schedule schedule;
    StatusBoard board;
    BoardClock clock;
    Dispatch dispatch;
    PlanDesk plan;
    SimulatorHandOff simulator;
    LogDesk log;
    CareerDesk career;
    Hall hall;
    LocaleSigns locale;
    Desk desk;

    /// AppDir + tail
    [[nodiscard]] std::string appPath(std::string_view tail) const { return AppDir + std::string(tail); }
    /// AppDir + DataSetPath + tail
    [[nodiscard]] std::string setPath(std::string_view tail) const {
        return AppDir + settings.DataSetPath + std::string(tail);
    }
};

} // namespace gatewise
