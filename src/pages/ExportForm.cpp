#include "pages/ExportForm.h"

#include "pages/ConfigFile.h"
#include "pages/ExportFiles.h"
#include "pages/FolderLists.h"
#include "pages/MsgForm.h"
#include "pages/Pictures.h"
#include "pages/Placement.h"
#include "pages/Screens.h"
#include "platform/Files.h"
#include "platform/Text.h"
#include "schedule/FlightTexts.h"

#include <array>

namespace gatewise {

namespace {

struct FmcProduct {
    Check forms::ExportForm::*box;
    const char* folder; // below FsPath
};

constexpr std::array<FmcProduct, 3> kFmcProducts = {
    {{&forms::ExportForm::kf747CHECK, "\\Kestrelfold Software\\Fmc"},
     {&forms::ExportForm::aetiCHECK, ""},
     {&forms::ExportForm::abCHECK, "\\Corporate Pilot\\Fmc"}}};

bool hasPlansFile(const std::string& folder) {
    return files::fileExists(folder + "\\FMSplans.fmc");
}

/// A target of the file picker: a fixed folder below FsPath, or the one that was used last.
struct ExportTarget {
    const char* kind;
    const char* folder; // below FsPath; nullptr: remembered
    const char* extension;
    const char* typeText;
    const char* title;
    std::string Globals::*lastPath;
    std::string Globals::*lastDrive;
};

constexpr std::array<ExportTarget, 5> kTargets = {
    {{"acs", nullptr, ".prg", "ACS-GPS Files (*.prg)", "Export ACS-GPS Flight Plan", &Globals::ACSPath,
      &Globals::ACSDrive},
     {"sb", nullptr, ".sbp", "SquawkBox Files (*.sbp)", "Export SquawkBox Flight Plan", &Globals::SBPath,
      &Globals::SBDrive},
     {"rc2", nullptr, ".apl", "Radar Contact (*.apl)", "Export Radar Contact Flight Plan",
      &Globals::RadarContactPath, &Globals::RadarContactDrive},
     {"fsnav", "\\Modules\\FSNavigator\\Plan", ".fsn", "FSNavigator 4 Plans (*.fsn)",
      "Export FSNavigator 4 Flight Plan", nullptr, nullptr},
     {"fs2k", "\\flights\\myflts", ".pln", "FS2000 Plan (*.pln)", "Export FS2000 Flight Plan", nullptr,
      nullptr}}};

const ExportTarget* targetOf(const Program& p) {
    for (const auto& target : kTargets) {
        if (p.g.ExportKind == target.kind) return &target;
    }
    return nullptr;
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

/// Settings that could not be read to their end leave no folder behind.
std::string startFolder(const Program& p, const ExportTarget& target) {
    if (target.folder != nullptr) return p.g.FsPath + target.folder;
    const std::string& last = p.g.*target.lastPath;
    return last.empty() ? p.g.AppDir : last;
}

void activateExportForm(Program& p) {
    auto& f = p.forms.ExportForm;
    CenterOnMain(p, f);
    restorePictures(f);
    RefreshExportButtons(p, "");
    for (const auto& product : kFmcProducts) {
        Check& box = f.*product.box;
        box.set(0);
        box.enabled = hasPlansFile(p.g.FsPath + product.folder);
    }
}

void activateDirExport(Program& p) {
    auto& f = p.forms.DirExportForm;
    CenterOnMain(p, f);
    restorePictures(f);
    const ExportTarget* target = targetOf(p);
    if (target == nullptr) return;
    f.Label1.text = target->title;
    f.fileTypeCOMBO.clear();
    f.fileTypeCOMBO.add(target->typeText);
    f.fileTypeCOMBO.select(0);
    f.File1.pattern = std::string("*") + target->extension;
    setDrive(f.Drive1, driveOf(target->folder != nullptr ? p.g.FsPath : p.g.*target->lastDrive));
    moveFolderLists(pickerLists(p), startFolder(p, *target));
    f.filenameTEXT.text = flightStem(p.g.tables, p.g.CurrentFlight) + target->extension;
}

/// Where there are no drive letters the drive of another machine's settings is left alone.
void rememberFolder(Program& p, const ExportTarget& target) {
    if (target.lastPath == nullptr) return;
    const auto& f = p.forms.DirExportForm;
    p.g.*target.lastPath = f.File1.path;
    if (const std::string drive = driveOf(f.Drive1.path); !drive.empty()) p.g.*target.lastDrive = drive;
}

void pickFile(Program& p) {
    auto& f = p.forms.DirExportForm;
    if (f.File1.picked < 0) return;
    f.filenameTEXT.text = f.File1.text();
    if (const ExportTarget* target = targetOf(p)) rememberFolder(p, *target);
}

void exportFs2000(Program& p, const std::string& path) {
    exportFlightPlanFile(p, path);
    ShowMessage(p, kInformation, 7);
}

struct TargetWriter {
    const char* kind;
    void (*write)(Program&, const std::string& path);
};

constexpr std::array<TargetWriter, 5> kWriters = {
    {{"fs2k", exportFs2000},
     {"fsnav", [](Program& p, const std::string&) { ExportFSNav(p); }},
     {"acs", ExportACSGPS},
     {"sb", ExportSB},
     {"rc2", ExportRC2}}};

} // namespace

void exportToFmc(Program& p) {
    auto& f = p.forms.ExportForm;
    for (const auto& product : kFmcProducts) {
        const std::string folder = p.g.FsPath + product.folder;
        if ((f.*product.box).value == 1 && hasPlansFile(folder)) exportFmcPlan(p, folder);
    }
    ShowMessage(p, kInformation, 1);
}

void openExportPicker(Program& p, const std::string& kind) {
    if (kind == "fsnav" && !files::folderExists(p.g.FsPath + "\\Modules\\FSNavigator\\Plan")) {
        ShowMessage(p, kWarning, 19);
        return;
    }
    p.g.ExportKind = kind;
    showModal(p, p.forms.DirExportForm);
}

void writeExport(Program& p) {
    auto& f = p.forms.DirExportForm;
    const std::string path = f.Dir1.path + "\\" + f.filenameTEXT.text;
    if (const ExportTarget* target = targetOf(p)) rememberFolder(p, *target);
    hideScreen(p, f);
    for (const auto& writer : kWriters) {
        if (p.g.ExportKind == writer.kind) writer.write(p, path);
    }
    WriteConfig(p);
}

void correctExportName(Program& p) {
    const ExportTarget* target = targetOf(p);
    if (target == nullptr || p.g.ExportKind == "fsnav") return;
    std::string& name = p.forms.DirExportForm.filenameTEXT.text;
    name = name.substr(0, name.find('.')) + target->extension;
}

void bindExportForm(Program& p) {
    auto& hub = p.forms.ExportForm;
    hub.load = [&p] { placeScreen(p, p.forms.ExportForm); };
    hub.activate = [&p] { activateExportForm(p); };
    hub.BG.on(Event::Move, [&p] {
        restorePictures(p.forms.ExportForm);
        RefreshExportButtons(p, "");
    });

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
