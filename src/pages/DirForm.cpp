#include "pages/DirForm.h"

#include "pages/ConfigFile.h"
#include "pages/FolderLists.h"
#include "pages/LocateSimulator.h"
#include "pages/Pictures.h"
#include "pages/Placement.h"
#include "pages/Screens.h"
#include "platform/Files.h"

namespace gatewise {

namespace {

bool holds(const PathList& folder, const char* file) {
    return files::fileExists(folder.path + "\\" + file);
}

void pickProgramFile(Program& p) {
    auto& f = p.forms.DirForm;
    if (!holds(f.Dir1, "FS2002.CFG")) return;
    f.selectButton.State = 1;
    f.selectButton.picture = "select_regular";
    p.g.FsPath = f.Dir1.path;
}

void openProgramFile(Program& p) {
    auto& f = p.forms.DirForm;
    if (!holds(f.Dir1, "FS2000.CFG")) return;
    p.g.FsPath = f.Dir1.path;
    takeSimulatorFolder(p);
}

void activateDirForm(Program& p) {
    auto& f = p.forms.DirForm;
    CenterOnMain(p, f);
    f.File1.pattern = "*.exe";
    f.Drive1.enabled = f.Dir1.enabled = true;
    f.closeButton.picture = "close_regular";
    f.selectButton.picture = "select_disabled";
    if (f.Dir1.path.empty())
        moveFolderLists({f.Drive1, f.Dir1, f.File1}, p.g.FsPath.empty() ? "/" : p.g.FsPath);
    refreshFiles(f.File1);
}

} // namespace

void takeSimulatorFolder(Program& p) {
    p.forms.SettingsForm.fspathLABEL.text = p.g.FsPath;
    WriteConfig(p);
    hideScreen(p, p.forms.DirForm);
    LocateSimulator(p);
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
        f.File1.on(event, [&p] { openProgramFile(p); });
    }
    f.Picture1.on(Event::Move, [&f] { restorePictures(f); });
}

} // namespace gatewise
