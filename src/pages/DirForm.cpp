#include "pages/DirForm.h"

#include "pages/FolderLists.h"
#include "pages/MsgForm.h"
#include "pages/Pictures.h"
#include "pages/Placement.h"
#include "pages/SaveSettings.h"
#include "work/LocateSimulator.h"

namespace gatewise {

namespace {

void pickProgramFile(Program& p) {
    auto& f = p.forms.DirForm;
    if (!holds(f.Dir1.path, "FS2002.CFG")) return;
    f.selectButton.State = 1;
    f.selectButton.picture = "select_regular";
    p.session.settings.FsPath = f.Dir1.path;
}

Waited openProgramFile(Program& p) {
    auto& f = p.forms.DirForm;
    if (!holds(f.Dir1.path, "FS2000.CFG")) return waited(p);
    p.session.settings.FsPath = f.Dir1.path;
    return takeSimulatorFolder(p);
}

void activateDirForm(Program& p) {
    auto& f = p.forms.DirForm;
    const std::string& FsPath = p.session.settings.FsPath;
    CenterOnMain(p, f);
    f.File1.pattern = "*.exe";
    f.Drive1.enabled = f.Dir1.enabled = true;
    f.closeButton.picture = "close_regular";
    f.selectButton.picture = "select_disabled";
    if (f.Dir1.path.empty()) moveFolderLists({f.Drive1, f.Dir1, f.File1}, FsPath.empty() ? "/" : FsPath);
    refreshFiles(f.File1);
}

} // namespace

Waited LocateSimulator(Program& p) {
    Session& s = p.session;
    const Located located = LocateSimulator(s.AppDir, p.machine.registry, s.settings);
    if (located.found) p.forms.SettingsForm.fspathLABEL.text = s.settings.FsPath;
    if (located.notice && ShowMessage(p, *located.notice) == Waited::Ended) return Waited::Ended;
    findProFlight(s.settings, s.simulator);
    return Waited::Answered;
}

Waited takeSimulatorFolder(Program& p) {
    p.forms.SettingsForm.fspathLABEL.text = p.session.settings.FsPath;
    saveSettings(p);
    hideScreen(p, p.forms.DirForm);
    return LocateSimulator(p);
}

void bindDirForm(Program& p) {
    auto& f = p.forms.DirForm;
    const FolderLists lists{f.Drive1, f.Dir1, f.File1};
    f.load = [&p, lists] {
        placeScreen(p, p.forms.DirForm);
        fillDrives(lists.Drive1);
        restorePictures(p.forms.DirForm);
    };
    f.activate = [&p] { activateDirForm(p); };
    bindFolderLists(lists);
    f.File1.on(Event::Click, [&p] { pickProgramFile(p); });
    for (const Event event : {Event::DoubleClick, Event::Enter}) {
        f.File1.on(event, [&p] { return openProgramFile(p); });
    }
    f.Picture1.on(Event::Move, [&f] { restorePictures(f); });
}

} // namespace gatewise
