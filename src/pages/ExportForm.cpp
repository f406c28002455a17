#include "pages/ExportForm.h"

#include "pages/MsgForm.h"
#include "pages/Pictures.h"
#include "pages/Placement.h"
#include "pages/SettingControls.h"
#include "platform/FileNames.h"
#include "work/FmcExports.h"
#include "work/PlanWork.h"
#include "work/ProFlight.h"

namespace gatewise {

namespace {

using forms::ExportForm;

constexpr std::int64_t kPollInterval = 100; // milliseconds

constexpr SettingBox<ExportForm> kFmcBoxes[] = {
    {&ExportForm::kf747CHECK, &Settings::Fmc747},
    {&ExportForm::aetiCHECK, &Settings::PF2Kfmc},
    {&ExportForm::abCHECK, &Settings::CPfmc},
};

Check& boxOf(ExportForm& f, const FmcProduct& product) {
    for (const auto& row : kFmcBoxes) {
        if (row.held == product.wanted) return f.*row.box;
    }
    return f.*kFmcBoxes[0].box;
}

void activateExportForm(Program& p) {
    auto& f = p.forms.ExportForm;
    CenterOnMain(p, f);
    restorePictures(f);
    RefreshExportButtons(p, "");
    for (const auto& product : fmcProducts()) {
        Check& box = boxOf(f, product);
        box.set(0);
        box.enabled = hasPlansFile(p.session.settings.FsPath, product);
    }
}

Waited ShelltoPF2K(Program& p) {
    auto& processes = p.machine.processes;
    const std::string folder = proFlightFolder(p.session.settings);
    p.forms.MainForm.enabled = false;
    const auto process = processes.start(folder + "\\PF2000.exe", "/gt", folder);
    while (process && !processes.ended(*process)) {
        if (pause(p, kPollInterval) == Waited::Ended) break;
    }
    p.forms.MainForm.enabled = true;
    return waited(p);
}

} // namespace

Waited exportToFmc(Program& p) {
    const Session& s = p.session;
    exportToFmc(s.settings, s.plan.plan, s.locale.numbers);
    return ShowMessage(p, Heading::Information, Message::FmcExported);
}

void showFmcBoxes(Program& p) {
    const Settings settings = p.session.settings;
    showBoxes<ExportForm>(p.forms.ExportForm, settings, kFmcBoxes);
}

Waited SendToProFlight(Program& p) {
    Session& s = p.session;
    const ExportJob job = exportJob(s.plan.plan, s.schedule, s.dispatch, s.settings, s.locale, p.machine);
    const std::string planName = job.stem + ".pln";
    std::error_code refused;
    const auto plan = files::namedIn(s.settings.FsPath + "\\flights\\myflts", planName, refused);
    if (!plan) return ShowMessage(p, failure(refused, "SendToProFlight"));
    (void)writeFs2000Plan(job, *plan); // nobody is told what becomes of it
    const auto missing = proFlightMissing(s.settings);
    if (missing && ShowMessage(p, *missing) == Waited::Ended) return Waited::Ended;
    ExportPF2K(s.settings, s.schedule, s.dispatch, s.locale.numbers, planName, s.plan.plan);
    return ShelltoPF2K(p);
}

void bindExportForm(Program& p) {
    auto& hub = p.forms.ExportForm;
    hub.load = [&p] { placeScreen(p, p.forms.ExportForm); };
    hub.activate = [&p] { activateExportForm(p); };
    tieBoxes<ExportForm>(hub, p.session.settings, kFmcBoxes);
    hub.BG.on(Event::Move, [&p] {
        restorePictures(p.forms.ExportForm);
        RefreshExportButtons(p, "");
    });
}

} // namespace gatewise
