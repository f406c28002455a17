#include "work/LocateSimulator.h"

#include "platform/Files.h"
#include "platform/Profile.h"
#include "work/ConfigFile.h"
#include "work/Notices.h"

namespace gatewise {

namespace {

/// Whether the file that the path names is there under just this name, letters compared without case.
bool foundAs(const std::string& path, std::string_view name) {
    return lowerCase(files::foundName(path)) == name;
}

} // namespace

Located LocateSimulator(const std::string& AppDir, const Registry& registry, Settings& settings) {
    const std::string config = configPath(AppDir);
    bool led = true; // a path came from somewhere
    if (ReadNumber("MAIN", "PathVerified", config) != 1) {
        const auto folder = registry.simulatorFolder();
        if (folder)
            settings.FsPath = *folder;
        else
            led = false;
    } else {
        settings.FsPath = ReadText("MAIN", "FSPath", config);
    }
    if (!settings.FsPath.empty() && foundAs(settings.FsPath + "\\fs2002.cfg", "fs2002.cfg")) {
        // Not kept: the next start looks again.
        (void)WriteValues({{"MAIN", "PathVerified", "1"}, {"MAIN", "FSPath", settings.FsPath}}, config);
        return {true, std::nullopt};
    }
    return {false, led ? std::optional(warn(Message::SimulatorNotFound)) : std::nullopt};
}

void findProFlight(const Settings& settings, SimulatorHandOff& simulator) {
    simulator.ProFlightFound =
        foundAs(settings.FsPath + "\\PF2000\\PF2000.cfg", "pf2000.cfg") ? kTrue : kFalse;
}

bool holds(const std::string& folder, const char* file) {
    return files::fileExists(folder + "\\" + file);
}

} // namespace gatewise
