#include "export/ExportPF2K.h"
#include "pages/ExportFiles.h"
#include "pages/ExportForm.h"
#include "pages/MsgForm.h"
#include "platform/Files.h"
#include "schedule/FlightTexts.h"

namespace gatewise {

namespace {

constexpr std::int64_t kPollInterval = 100; // milliseconds

void ExportPF2K(Program& p, const std::string& planName) {
    const auto& settings = p.forms.SettingsForm;
    const std::string file = p.g.FsPath + "\\PF2000\\PF2000.cfg";
    if (!files::fileExists(file)) ShowMessage(p, kWarning, 13);
    // The stored rate stays positive until the plan is loaded again.
    if (p.g.plan.descentRate < 0) p.g.plan.descentRate = -p.g.plan.descentRate;
    const ProFlightOptions options{settings.firstTEXT.text, settings.lastTEXT.text,
                                   settings.pf2_CallsignCHECK.value == 1, settings.pf2_FltNumCHECK.value == 1,
                                   settings.preflightCOMBO.data()};
    auto keys = proFlightKeys(p.g.plan, p.g.CurrentFlight, p.g.tables, options, p.g.numbers);
    keys.push_back({"FlightInfo", "GTFlight", planName});
    // The missing installation was the one warning; a file that cannot be written is not mentioned.
    (void)WriteValues(keys, file);
}

void ShelltoPF2K(Program& p) {
    auto& processes = p.machine.processes;
    const std::string folder = p.g.FsPath + "\\PF2000";
    p.forms.MainForm.enabled = false;
    const int process = processes.start(folder + "\\PF2000.exe", "/gt", folder);
    while (process >= 0 && !p.ending && !processes.ended(process)) p.machine.loop.wait(kPollInterval);
    p.forms.MainForm.enabled = true;
}

} // namespace

void SendToProFlight(Program& p) {
    const std::string planName = flightStem(p.g.tables, p.g.CurrentFlight) + ".pln";
    exportFlightPlanFile(p, p.g.FsPath + "\\flights\\myflts\\" + planName);
    ExportPF2K(p, planName);
    if (!p.ending) ShelltoPF2K(p);
}

} // namespace gatewise
