#include "gt1/Commands.h"

#include "gt1/Compile.h"
#include "gt1/Pack.h"
#include "gt1/Plans.h"
#include "gt1/Tables.h"
#include "gt1/Unpack.h"
#include "platform/FileSet.h"
#include "platform/Files.h"

#include <iterator>

namespace gatewise::gt1 {

namespace {

namespace fs = std::filesystem;

/// How much of a compilation is done.
constexpr double kWorldRead = 0.3;
constexpr double kLinked = 0.8;
constexpr double kPacked = 0.9;

bool makeFolder(const fs::path& folder, Report& report) {
    std::error_code error;
    fs::create_directories(folder, error);
    if (!error) return true;
    report.error({folder.string(), 0, 0, ""}, "a folder that can be made", error.message());
    return false;
}

template<class Content> void writeFile(const fs::path& file, const Content& content, Report& report) {
    if (const auto error = files::replace(files::textOf(file), content))
        report.error({file.string(), 0, 0, ""}, "a file that can be written", error.message());
}

/// The files belong together: all of them are replaced or none.
bool writeSet(std::vector<PackedFile> packed, const fs::path& folder, Report& report) {
    const auto tell = [&](const std::string& name, const std::string& found) {
        report.error({(folder / name).string(), 0, 0, ""}, "a file that can be written", found);
    };
    constexpr auto kWrite = fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    std::vector<files::NamedBytes> set;
    for (PackedFile& file : packed) {
        std::error_code error;
        const auto old = fs::status(folder / file.name, error);
        if (fs::is_directory(old) || (fs::exists(old) && (old.permissions() & kWrite) == fs::perms::none))
            tell(file.name, "a protected one");
        set.push_back({std::move(file.name), std::move(file.bytes)});
    }
    if (report.failed()) return false;
    const files::SetFailure failure = files::replaceSet(folder, set);
    if (failure.error) tell(failure.name, failure.error.message());
    return !report.failed();
}

/// A further set must not seem to bring shared tables of its own.
void refuseWorldTables(const fs::path& source, Report& report) {
    for (const std::string_view file :
         {AircraftRow::file, VorRow::file, NdbRow::file, FixRow::file, JetRow::file})
        if (std::error_code error; fs::exists(source / file, error))
            report.error({std::string(file), 0, 0, ""},
                         "this table in the main set alone, since all sets share it",
                         "one in " + source.string());
}

/// The table of records with the region that `regionOf(record)` knows.
template<class Row, class Records, class RegionOf>
NamedTable placedTable(const Records& records, const std::function<bool()>& goesOn, RegionOf regionOf) {
    std::vector<Row> rows(records.size());
    for (std::size_t i = 0; i < records.size() && (!goesOn || goesOn()); ++i) {
        rows[i].record = records[i];
        rows[i].region = regionOf(records[i]);
    }
    return {std::string(Row::file), tableText(rows, goesOn)};
}

NamedTable runwayTable(const DataSet& set) {
    std::vector<RunwayRow> rows;
    for (std::size_t i = 0; i < set.airports.size(); ++i)
        for (const RunwayRecord& runway : set.facilities[i].runways)
            rows.push_back({set.airports[i].Iata, runway});
    return {std::string(RunwayRow::file), tableText(rows)};
}

NamedTable radioTable(const DataSet& set) {
    std::vector<RadioRow> rows;
    for (std::size_t i = 0; i < set.airports.size(); ++i)
        rows.push_back({set.airports[i].Iata, set.facilities[i].radios});
    return {std::string(RadioRow::file), tableText(rows)};
}

std::string summary(const DataSet& set) {
    return std::to_string(set.airports.size()) + " airports, " + std::to_string(set.airlines.size()) +
           " airlines, " + std::to_string(set.flights.size()) + " flights, " +
           std::to_string(set.plans.size()) + " plans";
}

} // namespace

std::string compileFolder(const fs::path& source, const fs::path& target,
                          const std::optional<fs::path>& world, Report& report) {
    if (world) refuseWorldTables(source, report);
    const World shared = readWorld(world.value_or(source), report);
    report.reached(kWorldRead);
    const DataSet set = readDataSet(source, shared, report);
    if (report.failed()) return {};
    report.reached(kLinked);
    auto packed = packDataSet(set, report);
    report.reached(kPacked);
    if (!world) {
        auto more = packWorld(shared);
        packed.insert(packed.end(), std::make_move_iterator(more.begin()),
                      std::make_move_iterator(more.end()));
        // Those of an older world are no longer true.
        if (shared.regions.entries().empty() && files::fileExists(files::textOf(target / kRegionsFile)))
            packed.push_back({kRegionsFile, {}});
    }
    if (report.failed() || !makeFolder(target, report)) return {};
    return writeSet(std::move(packed), target, report) ? summary(set) : std::string();
}

std::vector<NamedTable> worldTables(const World& world, const std::function<bool()>& goesOn) {
    const auto aid = [&](char kind) {
        return [&world, kind](const NavaidRecord& r) {
            return world.regions.find(kind, r.navaidId.trimmed(), r.latitude, r.longitude);
        };
    };
    const auto fix = [&](const FixRecord& r) {
        return world.regions.find('I', r.fixName.trimmed(), r.latitude, r.longitude);
    };
    const auto jet = [&](const JetRecord& r) {
        return world.regions.find(r.jetKind.view()[0], r.jetName.trimmed(), r.latitude, r.longitude);
    };
    return {tableOf<AircraftRow>(world.aircraft, goesOn), placedTable<VorRow>(world.vor, goesOn, aid('V')),
            placedTable<NdbRow>(world.ndb, goesOn, aid('N')), placedTable<FixRow>(world.fixes, goesOn, fix),
            placedTable<JetRow>(world.jets, goesOn, jet)};
}

std::vector<NamedTable> dumpFolder(const fs::path& folder, const std::optional<fs::path>& world,
                                   Report& report) {
    const bool further = world || !files::fileExists(files::textOf(folder / "aircraft.gt1"));
    const fs::path worldFolder = world ? *world : further ? folder / ".." : folder;
    for (const fs::path& place : {folder, worldFolder}) {
        if (const auto left = files::finishSet(place); left.error)
            report.error({(place / left.name).string(), 0, 0, ""}, "a set that can be finished",
                         left.error.message());
    }
    const DataSet set = unpackDataSet(folder, report);
    const World names = unpackWorld(worldFolder, report);
    std::vector<NamedTable> out;
    out.push_back(tableOf<AirportRow>(set.airports));
    out.push_back(runwayTable(set));
    out.push_back(radioTable(set));
    out.push_back(tableOf<AirlineRow>(set.airlines));
    auto shared = further ? std::vector<NamedTable>() : worldTables(names);
    if (!further) out.push_back(std::move(shared.front())); // the aircraft
    out.push_back(tableOf<FlightRow>(set.flights));
    for (std::size_t i = 1; i < shared.size(); ++i) out.push_back(std::move(shared[i]));
    out.push_back({std::string(PlanRow::file), tableText(planRows(set, names, report))});
    return out;
}

void writeTables(const std::vector<NamedTable>& tables, const fs::path& folder, Report& report) {
    if (!makeFolder(folder, report)) return;
    for (const NamedTable& table : tables)
        if (report.goesOnNow()) writeFile(folder / table.file, std::string_view(table.text), report);
}

} // namespace gatewise::gt1
