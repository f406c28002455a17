#include "work/DataSets.h"

#include "platform/FileSet.h"
#include "platform/Files.h"
#include "schedule/Readers.h"

namespace gatewise {

namespace {

constexpr const char* kMainSet = "\\Data";
constexpr const char* kAllSchedules = "All Real World Airline Schedules";

/// What a set needs of its own besides the index.
constexpr const char* kTables[] = {"\\index.gt1", "\\airline.gt1", "\\routes.gt1", "\\arrivals.gt1"};

/// A set whose compilation was cut short is finished before it is read.
void finishTables(const std::string& AppDir, const std::string& DataSetPath) {
    (void)files::finishSet(files::target(AppDir + kMainSet));
    if (DataSetPath != kMainSet) (void)files::finishSet(files::target(AppDir + DataSetPath));
}

} // namespace

std::vector<std::string> dataSetNames(const std::string& AppDir) {
    std::vector<std::string> names{kAllSchedules};
    for (const auto& folder : dataSetFolders(AppDir)) names.push_back(folder);
    return names;
}

std::string dataSetPath(const std::string& AppDir, std::string_view name) {
    const std::string picked(trimmed(name));
    const std::string path =
        picked == kAllSchedules ? std::string(kMainSet) : std::string(kMainSet) + "\\" + picked;
    return files::fileExists(AppDir + path + "\\index.gt1") ? path : kMainSet;
}

int dataSetPlace(const std::vector<std::string>& names, const std::string& DataSetPath) {
    for (std::size_t i = 0; i < names.size(); ++i) {
        if (std::string(kMainSet) + "\\" + names[i] == DataSetPath) return static_cast<int>(i);
    }
    return 0;
}

void LoadTables(const std::string& AppDir, const std::string& DataSetPath, Schedule& schedule,
                const std::function<void(const char*)>& before) {
    const auto tell = [&](const char* message) {
        if (before) before(message);
    };
    finishTables(AppDir, DataSetPath);
    tell("Loading Airports, Standby...");
    loadAirports(AppDir + DataSetPath + "\\index.gt1", schedule.tables);
    schedule.airportFinder = AirportFinder(schedule.tables.airports);
    tell("Loading Airlines, Standby...");
    loadAirlines(AppDir + DataSetPath + "\\airline.gt1", schedule.tables);
    tell("Loading Aircraft, Standby...");
    loadAircraft(AppDir + "\\Data\\aircraft.gt1", schedule.tables);
}

std::error_code changeTables(const std::string& AppDir, const std::string& DataSetPath, Schedule& schedule) {
    finishTables(AppDir, DataSetPath);
    for (const char* table : kTables) {
        if (const auto error = files::InFile(files::resolve(AppDir + DataSetPath + table)).error())
            return error;
    }
    Tables tables = schedule.tables;
    const bool whole = loadAirports(AppDir + DataSetPath + "\\index.gt1", tables) &&
                       loadAirlines(AppDir + DataSetPath + "\\airline.gt1", tables) &&
                       loadAircraft(AppDir + "\\Data\\aircraft.gt1", tables);
    if (!whole) return std::make_error_code(std::errc::io_error);
    schedule.tables = std::move(tables);
    schedule.airportFinder = AirportFinder(schedule.tables.airports);
    return {};
}

} // namespace gatewise
