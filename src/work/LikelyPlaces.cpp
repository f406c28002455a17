#include "work/LikelyPlaces.h"

#include "platform/Files.h"
#include "work/LocateSimulator.h"

#include <algorithm>

namespace gatewise {

namespace {

/// Below a Windows disk.
constexpr const char* kTails[] = {
    "/Program Files/Microsoft Games/FS2002",
    "/Program Files (x86)/Microsoft Games/FS2002",
    "/Program Files/Microsoft Games/Flight Simulator 2002",
    "/Microsoft Games/FS2002",
    "/Games/FS2002",
    "/FS2002",
};

/// Folders of which each holds Windows disks of its own, below the home folder.
constexpr const char* kPrefixFolders[] = {"/.local/share/wineprefixes", "/Games", "/.wineprefixes"};

void addPrefixes(const std::string& folder, std::vector<std::string>& disks) {
    for (const auto& entry : files::list(folder)) {
        if (entry.folder) disks.push_back(folder + "/" + entry.name + "/drive_c");
    }
}

std::vector<std::string> windowsDisks(const std::string& home, const std::vector<std::string>& volumes) {
    std::vector<std::string> disks;
    for (char letter = 'C'; letter <= 'Z'; ++letter) {
        if (const std::string disk{letter, ':'}; files::folderExists(disk)) disks.push_back(disk);
    }
    if (!home.empty()) {
        disks.push_back(home + "/.wine/drive_c");
        for (const char* folder : kPrefixFolders) addPrefixes(home + folder, disks);
    }
    disks.insert(disks.end(), volumes.begin(), volumes.end());
    return disks;
}

bool isSimulator(const std::string& folder) {
    return holds(folder, "FS2002.CFG") || holds(folder, "FS2002.exe");
}

} // namespace

std::vector<std::string> likelyPlaces(const std::string& home, const std::vector<std::string>& volumes) {
    std::vector<std::string> places;
    for (const std::string& disk : windowsDisks(home, volumes)) {
        for (const char* tail : kTails) {
            const std::string place = disk + tail;
            if (isSimulator(place) && std::find(places.begin(), places.end(), place) == places.end())
                places.push_back(place);
        }
    }
    return places;
}

} // namespace gatewise
