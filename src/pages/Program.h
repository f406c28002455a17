#pragma once

#include "forms/Forms.h"
#include "platform/Machine.h"
#include "session/Globals.h"

#include <memory>
#include <string>

namespace gatewise {

class DS_Engine;

/// The one aggregate that the screens work on: the machine below, the global state, the screens as data.
struct Program {
    Program(Machine& machine, std::string appDir);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    Machine& machine;
    Globals g;
    Forms forms;
    std::unique_ptr<DS_Engine> SoundEngine;

    /// Set by Shutdown. The run loop ends, modal waits return at once and the work behind them stops.
    bool ending = false;

    /// AppDir + tail
    [[nodiscard]] std::string appPath(std::string_view tail) const { return g.AppDir + std::string(tail); }
    /// AppDir + DataSetPath + tail
    [[nodiscard]] std::string setPath(std::string_view tail) const {
        return g.AppDir + g.DataSetPath + std::string(tail);
    }
};

} // namespace gatewise
