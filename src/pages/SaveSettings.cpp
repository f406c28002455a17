#include "pages/SaveSettings.h"

#include "platform/Text.h"
#include "work/ConfigFile.h"

namespace gatewise {

void saveSettings(Program& p) {
    const Settings& settings = p.session.settings;
    const auto error = WriteConfig(p.session.AppDir, settings);
    // That it could not be read was said at the start.
    if (!error || error == settings.unread) return;
    p.machine.desktop.notify("GT.cfg could not be written: " + textFromUtf8(error.message()));
}

} // namespace gatewise
