#include "pages/LoadSettings.h"

#include "pages/ExportForm.h"
#include "pages/FlyForm.h"
#include "pages/OptionsForm.h"
#include "pages/SettingsForm.h"
#include "schedule/Lookups.h"
#include "work/ConfigFile.h"

namespace gatewise {

void loadSettings(Program& p) {
    Settings& settings = p.session.settings;
    ReadConfig(p.session.AppDir, settings);
    p.session.board.FavoriteAirlineName = settings.AnyAirline == 1 ? kAnyAirline : settings.FavoriteAirline;
    showSettings(p);
    showOptions(p);
    showFlyBox(p);
    showFmcBoxes(p);
}

} // namespace gatewise
