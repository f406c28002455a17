#include "pages/SaveSettings.h"

#include "work/ConfigFile.h"

namespace gatewise {

void saveSettings(Program& p) {
    const auto error = WriteConfig(p.session.AppDir, p.session.settings);
    if (error) p.machine.desktop.notify("GT.cfg could not be written: " + error.message());
}

} // namespace gatewise
