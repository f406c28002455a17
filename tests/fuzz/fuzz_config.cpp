#include "OutsideFile.h"
#include "platform/Profile.h"
#include "work/ConfigFile.h"

namespace {

using namespace gatewise;

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
    Settings first;
    ReadConfig(folder.path, first);
    fuzz::expect(first.DataSetPath == "\\Data");
    fuzz::expect(!WriteConfig(folder.path, first));
    const Profile written = loadProfile(file);

    Settings second;
    ReadConfig(folder.path, second);
    fuzz::expect(second.HomeIndex == first.HomeIndex);
    fuzz::expect(second.AmbienceVolume == first.AmbienceVolume);
    fuzz::expect(!WriteConfig(folder.path, second));
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
