#include "pages/LocateSimulator.h"

#include "pages/ConfigFile.h"
#include "pages/MsgForm.h"
#include "platform/Files.h"
#include "platform/Profile.h"

namespace gatewise {

namespace {

/// Whether the file that the path names is there under just this name, letters compared without case.
bool foundAs(const std::string& path, std::string_view name) {
    return lowerCase(files::foundName(path)) == name;
}

} // namespace

void LocateSimulator(Program& p) {
    const std::string config = configPath(p);
    bool silent = false; // no path came from anywhere: nothing to complain about
    if (ReadNumber("MAIN", "PathVerified", config) != 1) {
        const auto folder = p.machine.registry.simulatorFolder();
        if (folder)
            p.g.FsPath = *folder;
        else
            silent = true;
    } else {
        p.g.FsPath = ReadText("MAIN", "FSPath", config);
    }

    if (!p.g.FsPath.empty() && foundAs(p.g.FsPath + "\\fs2002.cfg", "fs2002.cfg")) {
        // Not kept: the next start looks again.
        (void)WriteValues({{"MAIN", "PathVerified", "1"}, {"MAIN", "FSPath", p.g.FsPath}}, config);
        p.forms.SettingsForm.fspathLABEL.text = p.g.FsPath;
    } else if (!silent) {
        ShowMessage(p, kWarning, 11);
        if (p.ending) return;
    }
    p.g.ProFlightFound = foundAs(p.g.FsPath + "\\PF2000\\PF2000.cfg", "pf2000.cfg") ? kTrue : kFalse;
}

} // namespace gatewise
