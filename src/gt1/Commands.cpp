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

template<class Row, class Records> NamedTable table(const Records& records) {
    std::vector<Row> rows(records.size());
    for (std::size_t i = 0; i < records.size(); ++i) rows[i].record = records[i];
    return {std::string(Row::file), tableText(rows)};
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
    const DataSet set = readDataSet(source, shared, report);
    if (report.failed()) return {};
    auto packed = packDataSet(set, report);
    if (!world) {
        auto more = packWorld(shared);
        packed.insert(packed.end(), std::make_move_iterator(more.begin()),
                      std::make_move_iterator(more.end()));
    }
    if (report.failed() || !makeFolder(target, report)) return {};
    return writeSet(std::move(packed), target, report) ? summary(set) : std::string();
}

std::vector<NamedTable> dumpFolder(const fs::path& folder, const std::optional<fs::path>& world,
                                   Report& report) {
    const bool further = world || !files::fileExists(files::textOf(folder / "aircraft.gt1"));
    const fs::path shared = world ? *world : further ? folder / ".." : folder;
    for (const fs::path& place : {folder, shared}) {
        if (const auto left = files::finishSet(place); left.error)
            report.error({(place / left.name).string(), 0, 0, ""}, "a set that can be finished",
                         left.error.message());
    }
    const DataSet set = unpackDataSet(folder, report);
    const World names = unpackWorld(shared, report);
    std::vector<NamedTable> out;
    out.push_back(table<AirportRow>(set.airports));
    out.push_back(runwayTable(set));
    out.push_back(radioTable(set));
    out.push_back(table<AirlineRow>(set.airlines));
    if (!further) out.push_back(table<AircraftRow>(names.aircraft));
    out.push_back(table<FlightRow>(set.flights));
    if (!further) {
        out.push_back(table<VorRow>(names.vor));
        out.push_back(table<NdbRow>(names.ndb));
        out.push_back(table<FixRow>(names.fixes));
        out.push_back(table<JetRow>(names.jets));
    }
    out.push_back({std::string(PlanRow::file), tableText(planRows(set, names, report))});
    return out;
}

void writeTables(const std::vector<NamedTable>& tables, const fs::path& folder, Report& report) {
    if (!makeFolder(folder, report)) return;
    for (const NamedTable& table : tables)
        writeFile(folder / table.file, std::string_view(table.text), report);
}

} // namespace gatewise::gt1
