#include "pages/ImportForm.h"

#include "import/Import.h"
#include "import/ImportReport.h"
#include "import/Install.h"
#include "import/Kinds.h"
#include "import/Timetable.h"
#include "pages/ImportJob.h"
#include "pages/MainData.h"
#include "pages/Pictures.h"
#include "pages/Placement.h"
#include "platform/Files.h"
#include "unpack/OpenSources.h"
#include "work/DataSets.h"

namespace gatewise {

namespace {

using importer::SourceInfo;

/// What stands behind the screen.
struct ImportDesk {
    std::vector<importer::Source> sources;
    std::string proposed; // name of the set; a pilot's own stays
    ImportJob job;
};

void showProgress(forms::ImportForm& f, const ImportJob& job) {
    f.progress_LABEL.text = textFromUtf8(job.words());
    f.progressBAR.value = job.percent();
}

/// What can be done to the list: everything while nothing runs behind it.
void showKeys(forms::ImportForm& f, const ImportDesk& desk, bool running) {
    f.sourceTEXT.enabled = f.nameTEXT.enabled = !running;
    f.addButton.enabled = f.folderButton.enabled = f.fileButton.enabled = !running;
    f.startButton.enabled = !running && !desk.sources.empty();
    f.removeButton.enabled = !running && f.sourceList.picked >= 0;
    f.cancelButton.enabled = running;
    f.progressTimer.enable(running);
}

/// Runs a job while the window stays alive; the screen offers to stop it and nothing else meanwhile.
Waited runJob(Program& p, ImportDesk& desk, const std::function<void()>& work) {
    auto& f = p.forms.ImportForm;
    desk.job.begin();
    showKeys(f, desk, true);
    p.machine.loop.work(work);
    showKeys(f, desk, false);
    f.progressBAR.value = 0;
    f.progress_LABEL.text = desk.job.cancelled() ? "Cancelled" : "";
    return waited(p);
}

ListView::Row rowOf(const SourceInfo& info) {
    const bool flown = info.firstDay > 0;
    const std::string from = flown ? importer::dayText(info.firstDay) : info.cycle;
    const std::string kind = info.fault.empty() ? std::string(importer::nameOf(info.kind)) : info.fault;
    return {"",
            {textFromUtf8(kind), textFromUtf8(info.file), info.rows > 0 ? std::to_string(info.rows) : "",
             from, flown ? importer::dayText(info.lastDay) : ""}};
}

/// Reads what is at a path, a folder or a file, and adds it to the list.
Waited addPath(Program& p, ImportDesk& desk, const std::string& path) {
    auto& f = p.forms.ImportForm;
    std::vector<std::string> faults;
    std::vector<importer::Source> sources = desk.sources;
    importer::RawTables raw;
    const Waited answer = runJob(p, desk, [&] {
        for (auto& source : unpack::openSources(files::resolve(path), faults))
            sources.push_back(std::move(source));
        importer::Findings findings;
        std::vector<std::string> told; // the list shows them at their files
        importer::sortSources(sources);
        raw = importer::readSources(sources, true, findings, told, desk.job);
    });
    if (answer == Waited::Ended || desk.job.cancelled()) return answer;
    if (!faults.empty()) f.progress_LABEL.text = textFromUtf8(faults.front());
    desk.sources = std::move(sources);
    f.sourceList.clear();
    for (const SourceInfo& info : raw.files) f.sourceList.rows.push_back(rowOf(info));
    showKeys(f, desk, false);
    const bool own = !trimmed(f.nameTEXT.text).empty() && f.nameTEXT.text != desk.proposed;
    if (!own && !desk.sources.empty()) f.nameTEXT.text = desk.proposed = importer::defaultName(raw);
    return answer;
}

Waited addSource(Program& p, ImportDesk& desk) {
    const auto& f = p.forms.ImportForm;
    const std::string path(trimmed(f.sourceTEXT.text));
    if (!f.addButton.enabled || path.empty()) return waited(p);
    return addPath(p, desk, path);
}

/// What the pilot finds with the system's own screens stands in the field, as if typed.
Waited addFound(Program& p, ImportDesk& desk, const std::optional<std::string>& path) {
    if (!path) return waited(p);
    p.forms.ImportForm.sourceTEXT.text = *path;
    return addPath(p, desk, *path);
}

/// Takes the picked table out of the list. A name that was proposed for what stood there goes with it: the
/// set is named anew when it is made.
void removeSource(forms::ImportForm& f, ImportDesk& desk) {
    const int place = f.sourceList.picked;
    if (!f.removeButton.enabled || place < 0 || place >= static_cast<int>(desk.sources.size())) return;
    desk.sources.erase(desk.sources.begin() + place);
    f.sourceList.rows.erase(f.sourceList.rows.begin() + place);
    f.sourceList.picked = std::min(place, static_cast<int>(f.sourceList.rows.size()) - 1);
    if (f.nameTEXT.text == desk.proposed) f.nameTEXT.text.clear();
    showKeys(f, desk, false);
}

/// Offers the new set beside the others and turns to it.
void chooseSet(Program& p, const std::string& name) {
    Session& s = p.session;
    auto& combo = p.forms.MainForm.routeCombo;
    const auto started = s.desk.StartupDone;
    s.desk.StartupDone = kFalse; // filling the list is no choice of the pilot's
    DiscoverDataSets(p);
    s.desk.StartupDone = started;
    const int place = combo.find(name);
    if (place < 0) return;
    // A set that was made anew under its old name is read anew.
    const std::string before = s.settings.DataSetPath;
    if (dataSetPath(s.AppDir, name) == before) s.settings.DataSetPath.clear();
    combo.select(place);
    if (s.settings.DataSetPath.empty()) s.settings.DataSetPath = before;
}

Waited startImport(Program& p, ImportDesk& desk) {
    auto& f = p.forms.ImportForm;
    if (!f.startButton.enabled || desk.sources.empty()) return waited(p);
    importer::ImportOptions options;
    options.name = utf8FromText(trimmed(f.nameTEXT.text));
    options.skipUnknown = true; // the list has shown them
    const auto folder = files::resolve(p.session.AppDir);
    importer::Imported made;
    gt1::Report report;
    bool put = false;
    f.reportTEXT.text.clear();
    const Waited answer = runJob(p, desk, [&] {
        const gt1::World shared = importer::sharedOf(folder, report);
        if (report.failed()) return;
        made = importer::makeImport(desk.sources, shared, options, desk.job);
        if (made.faults.empty() && !desk.job.cancelled())
            put = importer::install(made, folder, report, desk.job);
    });
    if (answer == Waited::Ended) return answer;
    const bool whole = !report.failed() && !desk.job.cancelled();
    std::string text = put || whole ? made.report : ""; // what was made came to nothing
    for (const std::string& error : report.errors()) text += "error: " + error + "\n";
    f.reportTEXT.text = textFromUtf8(text);
    // A press that came when everything was being put in came too late.
    if (put || !desk.job.cancelled()) f.progress_LABEL.text = put ? "Done" : "Nothing was written";
    if (put) {
        f.progressBAR.value = f.progressBAR.max;
        chooseSet(p, textFromUtf8(made.name));
    }
    return waited(p);
}

} // namespace

Waited showImport(Program& p) {
    return showModal(p, p.forms.ImportForm);
}

void closeImport(Program& p) {
    auto& f = p.forms.ImportForm;
    if (f.cancelButton.enabled)
        f.cancelButton.fire(Event::Click);
    else
        hideScreen(p, f);
}

void bindImportForm(Program& p) {
    auto& f = p.forms.ImportForm;
    const auto desk = std::make_shared<ImportDesk>();
    f.startButton.enabled = false;
    f.sourceList.on(Event::Column, [&f](const EventArgs& args) { f.sourceList.resetColumn(args.value); });
    f.load = [&p] { placeScreen(p, p.forms.ImportForm); };
    f.activate = [&p] {
        CenterOnMain(p, p.forms.ImportForm);
        restorePictures(p.forms.ImportForm);
    };
    f.BG.on(Event::Move, [&f] { restorePictures(f); });
    f.addButton.on(Event::Click, [&p, desk] { return addSource(p, *desk); });
    f.sourceTEXT.on(Event::Enter, [&p, desk] { return addSource(p, *desk); });
    f.folderButton.on(Event::Click, [&p, desk] {
        return addFound(p, *desk, p.machine.desktop.askFolder("Folder with downloaded tables"));
    });
    f.fileButton.on(Event::Click, [&p, desk] {
        const std::string& last = p.forms.ImportForm.sourceTEXT.text;
        return addFound(p, *desk, p.machine.desktop.askOpenPath("A downloaded table", last));
    });
    f.sourceList.on(Event::Click, [&f, desk] { showKeys(f, *desk, f.cancelButton.enabled); });
    f.removeButton.on(Event::Click, [&f, desk] { removeSource(f, *desk); });
    f.startButton.on(Event::Click, [&p, desk] { return startImport(p, *desk); });
    f.cancelButton.on(Event::Click, [desk] { desk->job.cancel(); });
    f.progressTimer.on(Event::Tick, [&p, desk] { showProgress(p.forms.ImportForm, desk->job); });
    p.forms.MainForm.importButton.on(Event::Click, [&p] { return showImport(p); });
}

} // namespace gatewise
