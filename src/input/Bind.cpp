#include "input/Bind.h"

#include "input/SkinnedButtons.h"
#include "pages/BoardRows.h"
#include "pages/BoardSigns.h"
#include "pages/BoardTimers.h"
#include "pages/CareerForm.h"
#include "pages/ClockForm.h"
#include "pages/DirExportForm.h"
#include "pages/DirForm.h"
#include "pages/ExportForm.h"
#include "pages/FlightForm.h"
#include "pages/FlyForm.h"
#include "pages/ImportForm.h"
#include "pages/InfoForm.h"
#include "pages/LogEntry.h"
#include "pages/MainClocks.h"
#include "pages/MainData.h"
#include "pages/MainForm.h"
#include "pages/MainLog.h"
#include "pages/MainTabs.h"
#include "pages/MsgBox.h"
#include "pages/MsgForm.h"
#include "pages/OptionsForm.h"
#include "pages/PlanCharts.h"
#include "pages/ProgramsForm.h"
#include "pages/RoutesForm.h"
#include "pages/SelectForm.h"
#include "pages/SettingsForm.h"
#include "pages/ViewPlan.h"
#include "pages/WaitForm.h"

namespace gatewise {

void bindScreens(Program& p) {
    for (auto* bind :
         {bindSkinnedButtons, bindMainForm,      bindMainTabs,   bindMainData,   bindMainClocks,
          bindBoardTimers,    bindBoardRows,     bindMainLog,    bindSelectForm, bindFlightForm,
          bindInfoForm,       bindMsgForm,       bindMsgBox,     bindWaitForm,   bindSettingsForm,
          bindOptionsForm,    bindDirForm,       bindViewPlan,   bindPlanCharts, bindExportForm,
          bindProgramsForm,   bindDirExportForm, bindFlyForm,    bindLogEntry,   bindClockForm,
          bindImportForm,     bindRoutesForm,    bindCareerForm, bindBoardSigns}) {
        bind(p);
    }
}

} // namespace gatewise
