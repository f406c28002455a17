#include "input/Commands.h"

#include "input/Shutdown.h"
#include "pages/ClockForm.h"
#include "pages/ConfigFile.h"
#include "pages/DirForm.h"
#include "pages/ExportForm.h"
#include "pages/FlightForm.h"
#include "pages/FlyForm.h"
#include "pages/MainBoard.h"
#include "pages/MainClocks.h"
#include "pages/MainLog.h"
#include "pages/MainTabs.h"
#include "pages/OptionsForm.h"
#include "pages/PlanCharts.h"
#include "pages/Screens.h"
#include "pages/SelectForm.h"
#include "pages/ViewPlan.h"

namespace gatewise {

namespace {

using Action = void (*)(Program&, SkinnedButton&);

struct Command {
    const char* button_type;
    Action act;
};

template<auto Form> void hide(Program& p, SkinnedButton&) {
    hideScreen(p, p.forms.*Form);
}
template<auto Form> void show(Program& p, SkinnedButton&) {
    showScreen(p, p.forms.*Form);
}
template<auto Form> void modal(Program& p, SkinnedButton&) {
    showModal(p, p.forms.*Form);
}
template<auto Run> void run(Program& p, SkinnedButton&) {
    Run(p);
}
void shutDown(Program& p, SkinnedButton&) {
    Shutdown(p);
}
void stepClock(Program& p, SkinnedButton& b) {
    stepBoardClock(p, b.button_type);
}
void stepVolume(Program& p, SkinnedButton& b) {
    stepAmbience(p, b.button_type);
}
void stepField(Program& p, SkinnedButton& b) {
    stepLogField(p, b.button_type);
}
void exportKind(Program& p, SkinnedButton& b) {
    openExportPicker(p, b.button_type);
}

void help(Program& p, SkinnedButton&) {
    p.machine.desktop.showHelp(p.appPath("\\GThelp.chm::/gt_gt.htm"));
}
void minimise(Program& p, SkinnedButton&) {
    p.machine.desktop.minimise();
}

void fly(Program& p, SkinnedButton&) {
    preparePlan(p);
    showScreen(p, p.forms.FlyForm);
}

constexpr Command kFlatButton[] = {
    {"exit", shutDown},
    {"settings", show<&Forms::SettingsForm>},
    {"print", run<printFlightPlan>},
    {"fly", fly},
    {"help", help},
};

constexpr Command kFormButton[] = {
    {"close", shutDown},
    {"close_export", hide<&Forms::ExportForm>},
    {"close_select", hide<&Forms::SelectForm>},
    {"close_dispatch", hide<&Forms::FlightForm>},
    {"close_log", hide<&Forms::LogEntry>},
    {"close_view", hide<&Forms::ViewPlan>},
    {"close_set", hide<&Forms::SettingsForm>},
    {"close_dir", hide<&Forms::DirForm>},
    {"close_direx", hide<&Forms::DirExportForm>},
    {"close_fly", hide<&Forms::FlyForm>},
    {"close_opt", hide<&Forms::OptionsForm>},
    {"close_charts", hide<&Forms::PlanCharts>},
    {"charts", run<showCharts>},
    {"log_csv", run<exportLogBook>},
    {"log_print", run<printLogPage>},
    {"min", minimise},
    {"hr_up", stepClock},
    {"hr_dn", stepClock},
    {"min_up", stepClock},
    {"min_dn", stepClock},
    {"vol_dn", stepVolume},
    {"vol_up", stepVolume},
    {"timeHr_up", stepField},
    {"timeHr_dn", stepField},
    {"timeMin_up", stepField},
    {"timeMin_dn", stepField},
    {"enter", run<searchDeparture>},
    {"time", run<nextClockRegion>},
};

constexpr Command kBoardButton[] = {
    {"next1", run<NextPage>},
    {"prev1", run<PreviousPage>},
};

void messageOk(Program& p, SkinnedButton&) {
    auto& f = p.forms.MsgForm;
    if (p.g.MessageMode == "del_log") {
        DeleteLogEntry(p);
        hideScreen(p, f);
    } else if (p.g.MessageMode == "path") {
        hideScreen(p, f);
        showModal(p, p.forms.DirForm);
        hideScreen(p, f);
    } else {
        hideScreen(p, f);
    }
}

void messageFly(Program& p, SkinnedButton&) {
    hideScreen(p, p.forms.MsgForm);
    FSRunning(p);
    Shutdown(p);
}

void messageCancel(Program& p, SkinnedButton&) {
    hideScreen(p, p.forms.MsgForm);
    if (p.g.MessageMode == "path") Shutdown(p);
}

constexpr Command kMidButton[] = {
    {"ok", messageOk},
    {"fly", messageFly},
    {"cancel", messageCancel},
    {"print_plan", run<printFlightPlan>},
    {"continue_view", hide<&Forms::ViewPlan>},
    {"recalc_fltplan", run<recalculateShownPlan>},
    {"remove_point", run<removeShownPoint>},
};

void turnBoard(Program& p, SkinnedButton&) {
    p.g.BoardPage = 0;
    SwitchBoard(p, p.g.BoardMode);
}

template<const char* Mode> void pick(Program& p, SkinnedButton&) {
    p.g.SelectMode = Mode;
    showModal(p, p.forms.SelectForm);
}

constexpr char kAirline[] = "airline";
constexpr char kArrival[] = "arrival";
constexpr char kAlternate[] = "alternate";
constexpr char kHomeAirline[] = "home_airline";

void closeSettings(Program& p, SkinnedButton&) {
    hideScreen(p, p.forms.SettingsForm);
    WriteConfig(p);
}

constexpr Command kSwitchButton[] = {
    {"airline", pick<kAirline>},
    {"select", run<acceptPick>},
    {"switch", turnBoard},
    {"edit", run<editLogEntry>},
    {"arr", pick<kArrival>},
    {"alt", pick<kAlternate>},
    {"close", hide<&Forms::InfoForm>},
    {"log", run<AddLogEntry>},
    {"prev", run<previousLogPage>},
    {"next", run<nextLogPage>},
    {"info", run<showPickedInfo>},
    {"selflt", run<takePickedFlight>},
    {"cont", hide<&Forms::ExportForm>},
    {"fmc", run<exportToFmc>},
    {"fsnav", exportKind},
    {"sb", exportKind},
    {"rc2", exportKind},
    {"fs2k", exportKind},
    {"acs", exportKind},
    {"continue_set", closeSettings},
    {"path", modal<&Forms::DirForm>},
    {"select_dir", run<takeSimulatorFolder>},
    {"home", run<searchHome>},
    {"viewpln", run<showPlan>},
    {"newpln", run<showFlightsAgain>},
    {"options", show<&Forms::OptionsForm>},
    {"continue_opt", run<takeBoardOptions>},
    {"continue_fly", run<sendFlight>},
    {"air_search", pick<kHomeAirline>},
    {"save_log", run<saveEditedEntry>},
    {"close_log", run<closeLogEntry>},
    {"delete", run<askToDelete>},
    {"export", run<writeExport>},
};

template<std::size_t N> void runFirst(const Command (&table)[N], Program& p, SkinnedButton& button) {
    for (const auto& command : table) {
        if (button.button_type == command.button_type) {
            command.act(p, button);
            return;
        }
    }
}

} // namespace

void runCommand(Program& p, SkinnedButton& button) {
    switch (button.kind) {
    case Kind::FlatButton:
        runFirst(kFlatButton, p, button);
        break;
    case Kind::FormButton:
        runFirst(kFormButton, p, button);
        break;
    case Kind::boardButton:
        runFirst(kBoardButton, p, button);
        break;
    case Kind::midButton:
        runFirst(kMidButton, p, button);
        break;
    case Kind::switchButton:
        runFirst(kSwitchButton, p, button);
        break;
    default:
        break;
    }
}

} // namespace gatewise
