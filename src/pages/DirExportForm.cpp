#include "pages/DirExportForm.h"

#include "pages/FolderLists.h"
#include "pages/MsgForm.h"
#include "pages/Pictures.h"
#include "pages/Placement.h"
#include "pages/SaveSettings.h"
#include "platform/FileNames.h"
#include "platform/Files.h"
#include "platform/Text.h"
#include "work/PlanWork.h"

namespace gatewise {

namespace {

const ExportKind* exportKind(const Program& p) {
    return exportKindOf(p.session.desk.ExportKind);
}

FolderLists pickerLists(Program& p) {
    auto& f = p.forms.DirExportForm;
    return {f.Drive1, f.Dir1, f.File1};
}

/// "C:" of a folder with a drive letter, empty where folders have none.
std::string driveOf(std::string_view folder) {
    return folder.size() >= 2 && folder[1] == ':' ? std::string(folder.substr(0, 2)) : std::string();
}

/// The list stays where it is when it has no such drive: where there are no drive letters, or the volume is
/// gone.
void setDrive(PathList& drives, const std::string& drive) {
    const int place = drives.find(upperCase(drive));
    if (place < 0) return;
    drives.path = drive;
    drives.picked = place;
}

/// Where the picker starts. Settings that could not be read to their end leave no folder behind.
ExportFolder startFolder(Program& p, const ExportKind& kind) {
    Settings& settings = p.session.settings;
    if (kind.folder != nullptr) return {settings.FsPath + kind.folder, settings.FsPath};
    ExportFolder last = settings.exportFolders[kind.word];
    if (last.path.empty()) last.path = p.session.AppDir;
    return last;
}

void activateDirExport(Program& p) {
    auto& f = p.forms.DirExportForm;
    CenterOnMain(p, f);
    restorePictures(f);
    const ExportKind* kind = exportKind(p);
    if (kind == nullptr) return;
    f.Label1.text = kind->title;
    f.fileTypeCOMBO.clear();
    f.fileTypeCOMBO.add(kind->typeText);
    f.fileTypeCOMBO.select(0);
    f.File1.pattern = std::string("*") + kind->extension;
    const ExportFolder start = startFolder(p, *kind);
    setDrive(f.Drive1, driveOf(start.drive));
    moveFolderLists(pickerLists(p), start.path);
    const Desk& desk = p.session.desk;
    f.filenameTEXT.text = desk.failedKind == kind->kind && !desk.failedName.empty()
                              ? desk.failedName
                              : flightStem(p.session.schedule, p.session.dispatch) + kind->extension;
}

/// The name that the pilot typed for an export that did not stand waits for the next try.
void keepName(Program& p, const Notice& notice) {
    Desk& desk = p.session.desk;
    const bool failed = notice.message == Message::Failure || !notice.reason.empty();
    desk.failedKind = failed ? desk.ExportKind : "";
    desk.failedName = failed ? p.forms.DirExportForm.filenameTEXT.text : "";
}

/// Where there are no drive letters the drive of another machine's settings is left alone.
void rememberFolder(Program& p) {
    const ExportKind* kind = exportKind(p);
    if (kind == nullptr || kind->word == nullptr) return;
    const auto& f = p.forms.DirExportForm;
    ExportFolder& last = p.session.settings.exportFolders[kind->word];
    last.path = f.File1.path;
    if (const std::string drive = driveOf(f.Drive1.path); !drive.empty()) last.drive = drive;
}

void pickFile(Program& p) {
    auto& f = p.forms.DirExportForm;
    if (f.File1.picked < 0) return;
    f.filenameTEXT.text = f.File1.text();
    rememberFolder(p);
}

} // namespace

Waited openExportPicker(Program& p, const std::string& kind) {
    const ExportKind* row = exportKindOf(kind);
    if (row != nullptr && row->needsFolder && !files::folderExists(p.session.settings.FsPath + row->folder))
        return ShowMessage(p, Heading::Warning, row->missing);
    p.session.desk.ExportKind = kind;
    return showModal(p, p.forms.DirExportForm);
}

Waited writeExport(Program& p) {
    auto& f = p.forms.DirExportForm;
    const Session& s = p.session;
    std::error_code refused;
    const auto path = files::namedIn(f.Dir1.path, f.filenameTEXT.text, refused);
    rememberFolder(p);
    hideScreen(p, f);
    if (const ExportKind* kind = exportKind(p)) {
        const ExportJob job = exportJob(s.plan.plan, s.schedule, s.dispatch, s.settings, s.locale, p.machine);
        const bool named = path || kind->ownName;
        const Notice notice = named ? kind->write(job, path.value_or(""))
                                    : failure(refused, "ExportPlans", f.filenameTEXT.text);
        keepName(p, notice);
        if (ShowMessage(p, notice) == Waited::Ended) return Waited::Ended;
    }
    saveSettings(p);
    return Waited::Answered;
}

void correctExportName(Program& p) {
    const ExportKind* kind = exportKind(p);
    if (kind == nullptr || kind->ownName) return;
    std::string& name = p.forms.DirExportForm.filenameTEXT.text;
    name = name.substr(0, name.find('.')) + kind->extension;
}

void bindDirExportForm(Program& p) {
    auto& picker = p.forms.DirExportForm;
    picker.load = [&p] {
        placeScreen(p, p.forms.DirExportForm);
        fillDrives(p.forms.DirExportForm.Drive1);
        setDrive(p.forms.DirExportForm.Drive1, "C:");
    };
    picker.activate = [&p] { activateDirExport(p); };
    bindFolderLists(pickerLists(p));
    picker.File1.on(Event::Click, [&p] { pickFile(p); });
    picker.BG.on(Event::Move, [&picker] { restorePictures(picker); });
}

} // namespace gatewise
