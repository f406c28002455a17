#include "OutsideFile.h"
#include "pages/LoadSettings.h"
#include "platform/Profile.h"
#include "platform/simulated/SimulatedMachine.h"
#include "sound/DS_Engine.h"
#include "sound/SilentDevice.h"
#include "work/ConfigFile.h"

#include <memory>

namespace {

using namespace gatewise;

/// The program as far as its configuration goes, on a machine of its own.
struct Configured {
    explicit Configured(const std::string& AppDir) : program(machine.machine, AppDir) {
        loadSettings(program);
    }
    SilentDevice sound;
    simulated::SimulatedMachine machine{sound};
    Program program;
};

std::string folderOfThisProcess() {
    const auto folder = fuzz::scratchPath("config");
    std::filesystem::create_directories(folder);
    return folder.string();
}

struct Folder {
    const std::string path = folderOfThisProcess();
    ~Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(path, ignored);
    }
};

constexpr std::pair<const char*, const char*> kNumbers[] = {
    {"Main", "Index"},
    {"Main", "StatusBoard"},
    {"Announcements", "ambVolume"},
    {"Announcements", "Dept1"},
    {"Announcements", "Arr3"},
    {"ProFlight", "FltNumber"},
    {"ProFlight", "Callsign"},
    {"FlightOptions", "SetDept"},
    {"FlightOptions", "PreFlight"},
    {"FlightOptions", "MinDist"},
    {"FlightOptions", "AnyAirline"},
    {"Export", "CPfmc"},
};
constexpr const char* kSorts[] = {"TimeSort", "CitySort", "FltNumSort"};

} // namespace

// Any bytes as GT.cfg: the read ends, and what the program then writes it reads back as it was.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const Folder folder;
    const std::string file = folder.path + "/GT.cfg";
    {
        std::ofstream out(file, std::ios::binary | std::ios::trunc);
        out.write(reinterpret_cast<const char*>(data), static_cast<std::streamsize>(size));
    }
    const auto first = std::make_unique<Configured>(folder.path);
    fuzz::expect(first->program.session.settings.DataSetPath == "\\Data");
    fuzz::expect(!WriteConfig(folder.path, first->program.session.settings));
    const Profile written = loadProfile(file);

    const auto second = std::make_unique<Configured>(folder.path);
    fuzz::expect(second->program.session.settings.HomeIndex == first->program.session.settings.HomeIndex);
    fuzz::expect(second->program.session.settings.AmbienceVolume ==
                 first->program.session.settings.AmbienceVolume);
    fuzz::expect(!WriteConfig(folder.path, second->program.session.settings));
    const Profile again = loadProfile(file);
    for (const auto& [section, key] : kNumbers) {
        // A read that ended early leaves the lists without a pick; a value that is there picks one.
        if (textIn(written, section, key).empty()) continue;
        fuzz::expect(numberIn(again, section, key) == numberIn(written, section, key));
    }
    for (const char* key : kSorts)
        fuzz::expect(textIn(again, "Announcements", key) == textIn(written, "Announcements", key));
    return 0;
}
