#include "pages/DirForm.h"

#include "pages/FolderLists.h"
#include "pages/MsgForm.h"
#include "pages/Pictures.h"
#include "pages/Placement.h"
#include "pages/SaveSettings.h"
#include "platform/Files.h"
#include "platform/UserFolders.h"
#include "work/LikelyPlaces.h"
#include "work/LocateSimulator.h"

namespace gatewise {

namespace {

constexpr const char* kSeekAlone = "Looking for the folder of FS2002.exe.";

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

/// Places where the simulator was found, to go to with one pick.
void fillPlaces(forms::DirForm& f) {
    f.placesCOMBO.clear();
    for (std::string& place : likelyPlaces(userFolders().home, mountedVolumes()))
        f.placesCOMBO.add(std::move(place));
    f.placesCOMBO.visible = f.placesCOMBO.count() > 0;
    if (!f.placesCOMBO.visible) f.seek_LABEL.text = kSeekAlone;
}

std::string startFolder(const forms::DirForm& f, const std::string& FsPath) {
    const auto& places = f.placesCOMBO.items;
    if (!places.empty() && (FsPath.empty() || !files::folderExists(FsPath))) return places.front();
    return FsPath.empty() ? "/" : FsPath;
}

void activateDirForm(Program& p) {
    auto& f = p.forms.DirForm;
    const std::string& FsPath = p.session.settings.FsPath;
    CenterOnMain(p, f);
    f.File1.pattern = "*.exe";
    f.Drive1.enabled = f.Dir1.enabled = true;
    f.closeButton.picture = "close_regular";
    f.selectButton.picture = "select_disabled";
    if (f.Dir1.path.empty()) moveFolderLists({f.Drive1, f.Dir1, f.File1}, startFolder(f, FsPath));
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
        fillPlaces(p.forms.DirForm);
        restorePictures(p.forms.DirForm);
    };
    f.activate = [&p] { activateDirForm(p); };
    bindFolderLists(lists);
    f.placesCOMBO.on(Event::Click, [&f, lists] { moveFolderLists(lists, f.placesCOMBO.text()); });
    f.File1.on(Event::Click, [&p] { pickProgramFile(p); });
    for (const Event event : {Event::DoubleClick, Event::Enter}) {
        f.File1.on(event, [&p] { return openProgramFile(p); });
    }
    f.Picture1.on(Event::Move, [&f] { restorePictures(f); });
}

} // namespace gatewise
