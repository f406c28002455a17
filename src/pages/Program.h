#pragma once

#include "forms/Forms.h"
#include "platform/Machine.h"
#include "session/Session.h"

#include <memory>
#include <string>

namespace gatewise {

class DS_Engine;

/// What the pages hold together: the machine below, the pilot's session, the screens as data. Work never sees
/// it: a page hands it the slices that it needs.
struct Program {
    Program(Machine& machine, std::string appDir);
    ~Program();
    Program(const Program&) = delete;
    Program& operator=(const Program&) = delete;

    Machine& machine;
    Session session;
    Forms forms;
    std::unique_ptr<DS_Engine> SoundEngine;

    /// Set by Shutdown. The run loop ends, and every wait says so to the work behind it, see Screens.h.
    bool ending = false;
};

} // namespace gatewise
