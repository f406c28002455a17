#include "screens/BoardTimers.h"
#include "screens/Clocks.h"
#include "screens/DataSets.h"
#include "screens/ExportScreens.h"
#include "screens/FlightScreens.h"
#include "screens/FlyScreen.h"
#include "screens/FolderScreens.h"
#include "screens/LocaleFix.h"
#include "screens/LogScreens.h"
#include "screens/MainPages.h"
#include "screens/Messages.h"
#include "screens/Picker.h"
#include "screens/PlanScreens.h"
#include "screens/Screens.h"
#include "screens/SettingsScreens.h"
#include "screens/SkinnedButtons.h"

namespace gatewise {

void bindScreens(Program& p) {
    for (auto* bind : {bindSkinnedButtons, bindMessages, bindMainForm, bindMainPages, bindDataSets,
                       bindClocks, bindBoardTimers, bindPicker, bindFlightScreens, bindSettingsScreens,
                       bindDirForm, bindPlanScreens, bindExportScreens, bindFlyScreen, bindLogScreens}) {
        bind(p);
    }
    auto& wait = p.forms.WaitForm;
    wait.load = [&p] { placeScreen(p, p.forms.WaitForm); };
    wait.activate = [&p] { CenterOnMain(p, p.forms.WaitForm); };
}

} // namespace gatewise
