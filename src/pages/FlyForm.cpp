#include "pages/FlyForm.h"

#include "pages/FlyAircraft.h"
#include "pages/MsgForm.h"
#include "pages/Pictures.h"
#include "pages/Placement.h"
#include "pages/SaveSettings.h"
#include "pages/SettingControls.h"
#include "pages/ViewPlan.h"
#include "platform/Numbers.h"
#include "work/PlanWork.h"
#include "work/SendFlight.h"

namespace gatewise {

namespace {

using forms::FlyForm;

constexpr SettingBox<FlyForm> kFlyBoxes[] = {{&FlyForm::flydefaultCHECK, &Settings::SetDefault}};

void loadFlyForm(Program& p) {
    auto& f = p.forms.FlyForm;
    placeScreen(p, f);
    restorePictures(f);
}

ListView::Row planRow(std::string_view id, std::string_view name, std::string_view route,
                      std::int32_t altitude) {
    return {"",
            {std::string(trimmed(id)) + " ", std::string(trimmed(name)), std::string(trimmed(route)),
             formatInteger("00000", altitude)},
            false};
}

/// A row for each point that a flight can start at: a row's place is the point's index, the destination has
/// none.
void fillPoints(ListView& list, const Plan& plan) {
    list.clear();
    const PlanAirport& from = plan.departureAirport;
    list.rows.push_back(planRow(from.Icao.view(), from.Name.view(), "", from.Elevation));
    for (int i = 1; i < plan.planLast; ++i) {
        const PlanPoint& point = plan.at(i);
        list.rows.push_back(planRow(point.pointName.view(), point.pointDescription.view(),
                                    point.pointAirway.view(), point.pointAltitude));
    }
}

/// No choice of an earlier flight stands.
void activateFlyForm(Program& p) {
    auto& f = p.forms.FlyForm;
    Session& s = p.session;
    CenterOnMain(p, f);
    if (fillAircraft(p) == Scanned::Left) return;
    f.posCOMBO.clear();
    for (std::string& choice : loadStartChoices(s.settings, s.plan.plan, s.simulator))
        f.posCOMBO.add(std::move(choice));
    fillPoints(f.PlanList, s.plan.plan);
    f.posCOMBO.select(0);
    f.acftCOMBO.select(0);
    f.PlanList.enabled = false;
}

void bindChoices(Program& p) {
    auto& f = p.forms.FlyForm;
    SimulatorHandOff& simulator = p.session.simulator;
    f.posCOMBO.on(Event::Click, [&simulator, &f] {
        simulator.StartChoice = f.posCOMBO.text();
        f.PlanList.enabled = simulator.StartChoice == kStartInflight;
    });
    f.PlanList.on(Event::Click, [&simulator, &f] {
        if (f.PlanList.enabled) simulator.SelectedPoint = static_cast<std::int16_t>(f.PlanList.picked);
    });
    tieBoxes<FlyForm>(f, p.session.settings, kFlyBoxes);
}

} // namespace

void showFlyForm(Program& p) {
    preparePlan(p);
    showScreen(p, p.forms.FlyForm);
}

Waited sendFlight(Program& p) {
    auto& f = p.forms.FlyForm;
    Session& s = p.session;
    saveSettings(p);
    const ExportJob job = exportJob(s.plan.plan, s.schedule, s.dispatch, s.settings, s.locale, p.machine);
    // Without a situation file nothing was sent: the options stay open for another try.
    if (const auto error = WriteFlightToSimulator(s.AppDir, job, s.dispatch.CurrentFlight, s.settings,
                                                  {f.acftCOMBO.text(), f.fuelPCT.text}, s.simulator))
        return ShowMessage(p, failure(error, "WriteSituationFile", situationPath(s.settings, job.stem)));
    hideScreen(p, f);
    return ShowMessages(p, afterSending(s.settings, job.stem));
}

void FSRunning(Program& p) {
    Processes& processes = p.machine.processes;
    if (processes.simulatorRunning()) {
        processes.bringSimulatorToFront();
    } else {
        (void)processes.start("fs2002.exe", "",
                              p.session.settings.FsPath); // the machine says what is missing
    }
}

void showFlyBox(Program& p) {
    showBoxes<FlyForm>(p.forms.FlyForm, p.session.settings, kFlyBoxes);
}

void bindFlyForm(Program& p) {
    auto& f = p.forms.FlyForm;
    f.load = [&p] { loadFlyForm(p); };
    f.activate = [&p] { activateFlyForm(p); };
    bindChoices(p);
    bindFlyAircraft(p);
    f.PlanList.on(Event::Column, [&f](const EventArgs& args) { f.PlanList.resetColumn(args.value); });
    f.fuelSLIDER.on(Event::Change, [&p, &f] {
        f.fuelPCT.text = std::to_string(f.fuelSLIDER.value);
        p.machine.desktop.paint();
    });
    const auto rest = [&f] { restorePictures(f); };
    for (Control* control : {static_cast<Control*>(&f.BG), static_cast<Control*>(&f.PlanList)}) {
        control->on(Event::Move, rest);
    }
}

} // namespace gatewise
