#include "input/Commands.h"

#include "input/Shutdown.h"
#include "pages/CareerForm.h"
#include "pages/CareerPages.h"
#include "pages/ClockForm.h"
#include "pages/DirExportForm.h"
#include "pages/DirForm.h"
#include "pages/ExportForm.h"
#include "pages/FlightForm.h"
#include "pages/FlyForm.h"
#include "pages/ImportForm.h"
#include "pages/MainBoard.h"
#include "pages/MainLog.h"
#include "pages/MainTabs.h"
#include "pages/OptionsForm.h"
#include "pages/PlanCharts.h"
#include "pages/ProgramsForm.h"
#include "pages/RoutesForm.h"
#include "pages/SaveSettings.h"
#include "pages/SelectForm.h"
#include "pages/ViewPlan.h"
#include "work/Clocks.h"
#include "work/ExportKinds.h"

#include <span>

namespace gatewise {

namespace {

using Action = Waited (*)(Program&, SkinnedButton&);

struct Command {
    const char* button_type;
    Action act;
};

template<auto Form> Waited hide(Program& p, SkinnedButton&) {
    hideScreen(p, p.forms.*Form);
    return waited(p);
}
template<auto Form> Waited show(Program& p, SkinnedButton&) {
    showScreen(p, p.forms.*Form);
    return waited(p);
}
template<auto Form> Waited modal(Program& p, SkinnedButton&) {
    return showModal(p, p.forms.*Form);
}
/// A function of a page that may wait, or one that never does.
template<Waited (*Run)(Program&)> Waited run(Program& p, SkinnedButton&) {
    return Run(p);
}
template<void (*Run)(Program&)> Waited run(Program& p, SkinnedButton&) {
    Run(p);
    return waited(p);
}
/// One that the button's type goes to.
template<void (*Run)(Program&, std::string_view)> Waited typed(Program& p, SkinnedButton& b) {
    Run(p, b.button_type);
    return waited(p);
}

void stepClock(Program& p, std::string_view type) {
    stepBoardClock(p.session.clock, type);
}
void turnClockRegion(Program& p) {
    nextClockRegion(p.session.clock);
}
void help(Program& p) {
    p.machine.desktop.showHelp(p.session.appPath("\\GThelp.chm::/gt_gt.htm"));
}
void minimise(Program& p) {
    p.machine.desktop.minimise();
}

constexpr Command kFlatButton[] = {
    {"exit", run<Shutdown>},
    {"settings", show<&Forms::SettingsForm>},
    {"print", run<printFlightPlan>},
    {"fly", run<showFlyForm>},
    {"help", run<help>},
};

constexpr Command kFormButton[] = {
    {"close", run<Shutdown>},
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
    {"close_programs", run<closePrograms>},
    {"close_import", run<closeImport>},
    {"close_routes", hide<&Forms::RoutesForm>},
    {"close_career", hide<&Forms::CareerForm>},
    {"charts", run<showCharts>},
    {"routes", run<showRoutes>},
    {"career", run<showCareer>},
    {"career_copy", run<copyCareer>},
    {"career_png", run<saveCareerPicture>},
    {"career_pdf", run<saveCareerPages>},
    {"career_print", run<printCareer>},
    {"log_csv", run<exportLogBook>},
    {"log_print", run<printLogPage>},
    {"min", run<minimise>},
    {"hr_up", typed<stepClock>},
    {"hr_dn", typed<stepClock>},
    {"min_up", typed<stepClock>},
    {"min_dn", typed<stepClock>},
    {"vol_dn", typed<changeVolume>},
    {"vol_up", typed<changeVolume>},
    {"ann_dn", typed<changeAnnouncementVolume>},
    {"ann_up", typed<changeAnnouncementVolume>},
    {"timeHr_up", typed<stepLogField>},
    {"timeHr_dn", typed<stepLogField>},
    {"timeMin_up", typed<stepLogField>},
    {"timeMin_dn", typed<stepLogField>},
    {"enter", run<searchDeparture>},
    {"time", run<turnClockRegion>},
};

constexpr Command kBoardButton[] = {
    {"next1", run<NextPage>},
    {"prev1", run<PreviousPage>},
};

Waited messageOk(Program& p) {
    auto& f = p.forms.MsgForm;
    const std::string mode = p.session.desk.MessageMode;
    if (mode == "del_log") {
        if (DeleteLogEntry(p) == Waited::Ended) return Waited::Ended;
        hideScreen(p, f);
        return Waited::Answered;
    }
    hideScreen(p, f);
    if (mode != "path") return waited(p);
    if (showModal(p, p.forms.DirForm) == Waited::Ended) return Waited::Ended;
    hideScreen(p, f); // a message that came up behind the folders
    return Waited::Answered;
}

void messageFly(Program& p) {
    hideScreen(p, p.forms.MsgForm);
    FSRunning(p);
    Shutdown(p);
}

void messageCancel(Program& p) {
    hideScreen(p, p.forms.MsgForm);
    if (p.session.desk.MessageMode == "path") Shutdown(p);
}

constexpr Command kMidButton[] = {
    {"ok", run<messageOk>},
    {"fly", run<messageFly>},
    {"cancel", run<messageCancel>},
    {"print_plan", run<printFlightPlan>},
    {"continue_view", hide<&Forms::ViewPlan>},
    {"recalc_fltplan", run<recalculateShownPlan>},
    {"remove_point", run<removeShownPoint>},
};

Waited turnBoard(Program& p) {
    p.session.board.BoardPage = 0;
    return SwitchBoard(p, p.session.board.BoardMode);
}

template<const char* Mode> Waited pickIn(Program& p, SkinnedButton&) {
    return pick(p, Mode);
}

constexpr char kAirline[] = "airline";
constexpr char kArrival[] = "arrival";
constexpr char kAlternate[] = "alternate";
constexpr char kHomeAirline[] = "home_airline";

void closeSettings(Program& p) {
    hideScreen(p, p.forms.SettingsForm);
    saveSettings(p);
}

constexpr Command kSwitchButton[] = {
    {"airline", pickIn<kAirline>},
    {"select", run<acceptPick>},
    {"switch", run<turnBoard>},
    {"edit", run<editLogEntry>},
    {"arr", pickIn<kArrival>},
    {"alt", pickIn<kAlternate>},
    {"close", hide<&Forms::InfoForm>},
    {"log", run<AddLogEntry>},
    {"prev", run<previousLogPage>},
    {"next", run<nextLogPage>},
    {"info", run<showPickedInfo>},
    {"selflt", run<takePickedFlight>},
    {"cont", hide<&Forms::ExportForm>},
    {"fmc", run<exportToFmc>},
    {"continue_set", run<closeSettings>},
    {"path", modal<&Forms::DirForm>},
    {"select_dir", run<takeSimulatorFolder>},
    {"home", run<searchHome>},
    {"viewpln", run<showPlan>},
    {"newpln", run<showFlightsAgain>},
    {"options", show<&Forms::OptionsForm>},
    {"continue_opt", run<takeBoardOptions>},
    {"continue_fly", run<sendFlight>},
    {"air_search", pickIn<kHomeAirline>},
    {"save_log", run<saveEditedEntry>},
    {"close_log", run<closeLogEntry>},
    {"delete", run<askToDelete>},
    {"export", run<writeExport>},
    {"programs", modal<&Forms::ProgramsForm>},
    {"send_programs", run<exportToPrograms>},
    {"browse", browseProgramFolder},
};

/// The kinds of export come from their own table.
Waited exportByKind(Program& p, SkinnedButton& button) {
    return exportKindOf(button.button_type) != nullptr ? openExportPicker(p, button.button_type) : waited(p);
}

Waited runFirst(std::span<const Command> table, Program& p, SkinnedButton& button, Action otherwise) {
    for (const auto& command : table) {
        if (button.button_type == command.button_type) return command.act(p, button);
    }
    return otherwise != nullptr ? otherwise(p, button) : waited(p);
}

} // namespace

Waited runCommand(Program& p, SkinnedButton& button) {
    switch (button.kind) {
    case Kind::FlatButton:
        return runFirst(kFlatButton, p, button, nullptr);
    case Kind::FormButton:
        return runFirst(kFormButton, p, button, nullptr);
    case Kind::boardButton:
        return runFirst(kBoardButton, p, button, nullptr);
    case Kind::midButton:
        return runFirst(kMidButton, p, button, nullptr);
    case Kind::switchButton:
        return runFirst(kSwitchButton, p, button, exportByKind);
    default:
        return waited(p);
    }
}

} // namespace gatewise
