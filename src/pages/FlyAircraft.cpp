#include "pages/FlyAircraft.h"

#include "work/LocateSimulator.h"
#include "work/SendFlight.h"

#include <memory>
#include <optional>

namespace gatewise {

namespace {

constexpr const char* kNoFolder = "No simulator folder yet";
constexpr const char* kNoAircraft = "No aircraft in the folder";

/// The scan that runs now; empty between scans.
std::shared_ptr<ScanProgress>& running(Program& p) {
    return p.session.simulator.scan;
}

void sayProgress(forms::FlyForm& f, int folders) {
    f.acftEmpty_LABEL.text = "Looking for aircraft: " + std::to_string(folders);
}

/// While a scan runs: how far it is, and its end when nobody waits for it any more. The end of the program
/// ends it without this.
void watch(Program& p) {
    const auto scan = running(p);
    auto& f = p.forms.FlyForm;
    if (scan == nullptr) return;
    sayProgress(f, scan->folders);
    if (!f.visible) scan->stop = true;
}

void showScanning(forms::FlyForm& f, bool scanning) {
    f.acftEmpty_LABEL.visible = scanning;
    f.folderButton.visible = false;
    f.continueButton.State = scanning ? 0 : 1;
    f.scan_TIMER.enable(scanning);
}

/// In the place of no aircraft: what to do.
void sayEmpty(Program& p) {
    auto& f = p.forms.FlyForm;
    const bool none = f.acftCOMBO.count() == 0;
    f.acftEmpty_LABEL.visible = f.folderButton.visible = none;
    const bool simulator = holds(p.session.settings.FsPath, "FS2002.CFG");
    f.acftEmpty_LABEL.text = simulator ? kNoAircraft : kNoFolder;
}

void take(Program& p, std::vector<ScannedAircraft> found, const std::string& folder) {
    SimulatorHandOff& simulator = p.session.simulator;
    simulator.AircraftTable = std::move(found);
    simulator.scannedFolder = folder;
    auto& list = p.forms.FlyForm.acftCOMBO;
    list.clear();
    for (const ScannedAircraft& aircraft : simulator.AircraftTable) list.add(aircraft.title);
}

/// Off the thread that draws, where there is one. Nothing of a scan that was ended before its time.
std::optional<std::vector<ScannedAircraft>> scan(Program& p, const std::string& folder) {
    const auto progress = running(p) = std::make_shared<ScanProgress>();
    std::vector<ScannedAircraft> found;
    p.machine.loop.work([&] { found = FilesSearch(folder, progress.get()); });
    running(p).reset();
    if (progress->stop) return std::nullopt;
    return found;
}

Waited chooseFolder(Program& p) {
    if (showModal(p, p.forms.DirForm) == Waited::Ended) return Waited::Ended;
    if (p.forms.FlyForm.visible) p.forms.FlyForm.activate();
    return waited(p);
}

} // namespace

Scanned fillAircraft(Program& p) {
    auto& f = p.forms.FlyForm;
    const std::string folder = aircraftFolder(p.session.settings);
    if (running(p) != nullptr) return Scanned::Left; // shown again while its scan runs
    if (p.session.simulator.scannedFolder != folder) {
        showScanning(f, true);
        sayProgress(f, 0);
        p.machine.desktop.setPointer(true);
        auto found = scan(p, folder);
        // A screen that was closed and is up again before the scan had heard of it.
        while (!found && f.visible && !p.ending) found = scan(p, folder);
        p.machine.desktop.setPointer(false);
        showScanning(f, false);
        if (!f.visible || p.ending) return Scanned::Left;
        take(p, std::move(*found), folder);
    }
    sayEmpty(p);
    return Scanned::Done;
}

void bindFlyAircraft(Program& p) {
    auto& f = p.forms.FlyForm;
    f.folderButton.on(Event::Click, [&p] { return chooseFolder(p); });
    f.scan_TIMER.on(Event::Tick, [&p] { watch(p); });
}

} // namespace gatewise
