#include "pages/Program.h"

#include "sound/DS_Engine.h"

namespace gatewise {

Program::Program(Machine& m, std::string appDir) : machine(m) {
    session.AppDir = std::move(appDir);
}

Program::~Program() {
    forms.attachTimers(nullptr);
}

} // namespace gatewise
