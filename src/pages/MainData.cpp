#include "pages/MainData.h"

#include "pages/ConfigFile.h"
#include "pages/MainPass.h"
#include "pages/MsgForm.h"
#include "pages/Pictures.h"
#include "platform/Files.h"
#include "schedule/Readers.h"

namespace gatewise {

namespace {

constexpr const char* kMainSet = "\\Data";
constexpr const char* kAllSchedules = "All Real World Airline Schedules";

void changeDataSet(Program& p) {
    if (p.g.StartupDone == kFalse) return;
    auto& f = p.forms.MainForm;
    const std::string picked(trimmed(f.routeCombo.text()));
    std::string path =
        picked == kAllSchedules ? std::string(kMainSet) : std::string(kMainSet) + "\\" + picked;
    if (!files::fileExists(p.appPath(path + "\\index.gt1"))) path = kMainSet;
    if (path == p.g.DataSetPath) return;

    p.g.DataSetPath = path;
    p.g.HomeIndex = 0;
    WriteConfig(p);
    p.machine.desktop.setPointer(true);
    LoadTables(p);
    ClearDispatch(p);
    f.arrivalButton.State = 0;
    f.statusboard_LABEL.enabled = false;
    f.departureText.text.clear();
    RefreshMainButtons(p, " ");
    ShowMessage(p, kInformation, 15);
    p.machine.desktop.setPointer(false);
}

} // namespace

void DiscoverDataSets(Program& p) {
    auto& combo = p.forms.MainForm.routeCombo;
    combo.clear();
    combo.add(kAllSchedules);
    for (const auto& folder : dataSetFolders(p.g.AppDir)) combo.add(folder);
    combo.select(0);
    for (int i = 0; i < combo.count(); ++i) {
        if (std::string(kMainSet) + "\\" + combo.items[static_cast<std::size_t>(i)] == p.g.DataSetPath) {
            combo.select(i);
            break;
        }
    }
    combo.locked = combo.count() == 1;
}

void LoadTables(Program& p, const std::function<void(const char*)>& before) {
    const auto tell = [&](const char* message) {
        if (before) before(message);
    };
    tell("Loading Airports, Standby...");
    loadAirports(p.setPath("\\index.gt1"), p.g.tables);
    p.g.airportFinder = AirportFinder(p.g.tables.airports);
    tell("Loading Airlines, Standby...");
    loadAirlines(p.setPath("\\airline.gt1"), p.g.tables);
    tell("Loading Aircraft, Standby...");
    loadAircraft(p.appPath("\\Data\\aircraft.gt1"), p.g.tables);
}

void bindMainData(Program& p) {
    p.forms.MainForm.routeCombo.on(Event::Click, [&p] { changeDataSet(p); });
}

} // namespace gatewise
