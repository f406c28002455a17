#include "pages/FlyForm.h"

#include "pages/ConfigFile.h"
#include "pages/ExportFiles.h"
#include "pages/MsgForm.h"
#include "pages/Pictures.h"
#include "pages/Placement.h"
#include "pages/Screens.h"
#include "platform/Files.h"
#include "platform/Text.h"
#include "schedule/FlightTexts.h"
#include "simulator/FlightFile.h"

namespace gatewise {

namespace {

// ---- the fly options

/// Fills the list of aircraft. Only at load: aircraft that are installed meanwhile count from the next start.
void fillAircraft(Program& p) {
    auto& list = p.forms.FlyForm.acftCOMBO;
    p.machine.desktop.setPointer(true);
    p.g.AircraftTable = FilesSearch(p.g.FsPath + "\\Aircraft");
    for (const ScannedAircraft& aircraft : p.g.AircraftTable) list.add(aircraft.title);
    p.machine.desktop.setPointer(false);
}

void loadFlyForm(Program& p) {
    auto& f = p.forms.FlyForm;
    placeScreen(p, f);
    restorePictures(f);
    fillAircraft(p);
    for (int i = 0; i < static_cast<int>(f.PlanList.columns.size()); ++i) f.PlanList.resetColumn(i);
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
void fillPoints(Program& p) {
    const Plan& plan = p.g.plan;
    auto& list = p.forms.FlyForm.PlanList;
    list.clear();
    const PlanAirport& from = plan.departureAirport;
    list.rows.push_back(planRow(from.Icao.view(), from.Name.view(), "", from.Elevation));
    for (int i = 1; i < plan.planLast; ++i) {
        const PlanPoint& point = plan.at(i);
        list.rows.push_back(planRow(point.pointName.view(), point.pointDescription.view(),
                                    point.pointAirway.view(), point.pointAltitude));
    }
}

void fillPositions(Program& p) {
    const PlanAirport& from = p.g.plan.departureAirport;
    p.g.storedPositions = loadStoredPositions(p.g.FsPath, from.Icao.view());
    auto& list = p.forms.FlyForm.posCOMBO;
    list.clear();
    for (std::string& choice : startChoices(from, p.g.storedPositions)) list.add(std::move(choice));
}

/// No choice of an earlier flight stands.
void activateFlyForm(Program& p) {
    auto& f = p.forms.FlyForm;
    CenterOnMain(p, f);
    fillPositions(p);
    fillPoints(p);
    f.posCOMBO.select(0);
    f.acftCOMBO.select(0);
    f.PlanList.enabled = false;
}

// ---- the send

std::string simulatorPath(const Program& p, std::string_view tail) {
    return p.g.FsPath + std::string(tail);
}

SituationInput situation(Program& p, const std::string& stem) {
    auto& f = p.forms.FlyForm;
    return {.plan = p.g.plan,
            .CurrentFlight = p.g.CurrentFlight,
            .numbers = p.g.numbers,
            .stem = stem,
            .StartChoice = p.g.StartChoice,
            .start = {p.g.StartLat, p.g.StartLon, p.g.StartHdg},
            .aircraft = f.acftCOMBO.text(),
            .fuelPCT = f.fuelPCT.text,
            .PreFlight = p.forms.SettingsForm.preflightCOMBO.data(),
            .pointIndex = p.g.SelectedPoint};
}

/// The start position, the plan, the situation file: what fails leaves what stands before it in place.
std::error_code WriteFlightToSimulator(Program& p, const std::string& stem) {
    const StartPosition start = resolveStart(p.g.StartChoice, p.g.plan, p.g.storedPositions,
                                             p.g.SelectedPoint, {p.g.StartLat, p.g.StartLon, p.g.StartHdg});
    p.g.StartLat = start.StartLat;
    p.g.StartLon = start.StartLon;
    p.g.StartHdg = start.StartHdg;
    exportFlightPlanFile(p, simulatorPath(p, "\\flights\\myflts\\" + stem + ".pln"));
    return WriteSituationFile(p.appPath("\\Data\\default.FLT"),
                              simulatorPath(p, "\\flights\\fs2kflts\\" + stem + ".FLT"),
                              situationKeys(situation(p, stem)));
}

} // namespace

void sendFlight(Program& p) {
    auto& f = p.forms.FlyForm;
    const std::string stem = flightStem(p.g.tables, p.g.CurrentFlight);
    (void)WriteConfig(p);
    // Without a situation file nothing was sent: the options stay open for another try.
    if (const auto error = WriteFlightToSimulator(p, stem)) {
        ShowFailure(p, error, "WriteSituationFile");
        return;
    }
    hideScreen(p, f);
    if (f.flydefaultCHECK.value == 1) {
        const auto error = SetDefaultFlight(p.g.FsPath, stem);
        if (!error) {
            ShowMessage(p, kInformation, 17);
            return;
        }
        // The flight itself has arrived; the pilot picks it by hand.
        ShowFailure(p, error, "SetDefaultFlight");
    }
    ShowMessage(p, kInformation, 5);
}

void FSRunning(Program& p) {
    Processes& processes = p.machine.processes;
    if (processes.simulatorRunning()) {
        processes.bringSimulatorToFront();
    } else {
        processes.start("fs2002.exe", "", p.g.FsPath);
    }
}

void bindFlyForm(Program& p) {
    auto& f = p.forms.FlyForm;
    f.load = [&p] { loadFlyForm(p); };
    f.activate = [&p] { activateFlyForm(p); };
    f.posCOMBO.on(Event::Click, [&p, &f] {
        p.g.StartChoice = f.posCOMBO.text();
        f.PlanList.enabled = p.g.StartChoice == kStartInflight;
    });
    f.PlanList.on(Event::Click, [&p, &f] {
        if (f.PlanList.enabled) p.g.SelectedPoint = static_cast<std::int16_t>(f.PlanList.picked);
    });
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
