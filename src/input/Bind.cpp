#include "input/Bind.h"

#include "input/SkinnedButtons.h"
#include "pages/BoardTimers.h"
#include "pages/ClockForm.h"
#include "pages/DirForm.h"
#include "pages/ExportForm.h"
#include "pages/FlightForm.h"
#include "pages/FlyForm.h"
#include "pages/InfoForm.h"
#include "pages/LogEntry.h"
#include "pages/MainClocks.h"
#include "pages/MainData.h"
#include "pages/MainForm.h"
#include "pages/MainLog.h"
#include "pages/MainTabs.h"
#include "pages/MsgForm.h"
#include "pages/OptionsForm.h"
#include "pages/Placement.h"
#include "pages/PlanCharts.h"
#include "pages/SelectForm.h"
#include "pages/SettingsForm.h"
#include "pages/ViewPlan.h"

namespace gatewise {

void bindScreens(Program& p) {
    for (auto* bind :
         {bindSkinnedButtons, bindMsgForm,      bindMainForm,    bindMainTabs,   bindMainData,
          bindMainClocks,     bindBoardTimers,  bindMainLog,     bindSelectForm, bindFlightForm,
          bindInfoForm,       bindSettingsForm, bindOptionsForm, bindDirForm,    bindViewPlan,
          bindPlanCharts,     bindExportForm,   bindFlyForm,     bindLogEntry,   bindClockForm}) {
        bind(p);
    }
    auto& wait = p.forms.WaitForm;
    wait.load = [&p] { placeScreen(p, p.forms.WaitForm); };
    wait.activate = [&p] { CenterOnMain(p, p.forms.WaitForm); };
}

} // namespace gatewise
