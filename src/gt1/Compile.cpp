#include "gt1/Compile.h"

#include "gt1/Plans.h"
#include "gt1/Tables.h"
#include "platform/FileNames.h"

#include <algorithm>
#include <numeric>
#include <unordered_map>

namespace gatewise::gt1 {

namespace {

/// How much of a compilation is done when the tables are read, and when the flights are linked.
constexpr double kTablesRead = 0.6;
constexpr double kFlightsLinked = 0.7;

using Numbers = std::unordered_map<std::string, int>;

/// The line of each key, with an error for each key that stands twice.
template<class Row, class Key>
Numbers uniqueKeys(const Table<Row>& table, std::string_view column, Key key, Report& report) {
    Numbers lines;
    for (const auto& [line, row] : table.lines) {
        const auto [first, isNew] = lines.try_emplace(key(row), line);
        if (!report.goesOn()) break;
        if (!isNew)
            report.error(table.place(line, column), "each " + std::string(column) + " once",
                         inQuotes(utf8FromText(trimmed(key(row)))) + " again, first in line " +
                             std::to_string(first->second));
    }
    return lines;
}

/// The index of each row by its key; the first row wins.
template<class Row, class Key> Numbers indexBy(const Table<Row>& table, Key key) {
    Numbers out;
    for (std::size_t i = 0; i < table.lines.size(); ++i)
        out.try_emplace(key(table.lines[i].row), static_cast<int>(i));
    return out;
}

/// The index that stands for a code, -1 with an error when there is none.
template<class Row>
int known(const Numbers& numbers, const Table<Row>& table, int line, std::string_view column,
          std::string_view code, std::string_view expected, Report& report) {
    const auto found = numbers.find(std::string(code));
    if (found != numbers.end()) return found->second;
    report.error(table.place(line, column), expected, inQuotes(utf8FromText(trimmed(code))));
    return -1;
}

constexpr std::string_view anAirport = "the iata code of an airport in airports.csv";

std::vector<AirportRecord> airportsOf(const Table<AirportRow>& table, Report& report) {
    uniqueKeys(
        table, "iata", [](const AirportRow& r) { return r.record.Iata.str(); }, report);
    uniqueKeys(
        table, "icao", [](const AirportRow& r) { return r.record.Icao.str(); }, report);
    constexpr std::size_t most = 32767;
    if (table.lines.size() > most)
        report.error({std::string(AirportRow::file), table.lines[most].line, 0, ""},
                     "at most 32767 airports, which is as far as a flight's airport numbers reach",
                     std::to_string(table.lines.size()));
    std::vector<AirportRecord> out;
    for (const auto& line : table.lines) out.push_back(line.row.record);
    return out;
}

std::vector<Facilities> facilitiesOf(const Table<RunwayRow>& runways, const Table<RadioRow>& radios,
                                     const Table<AirportRow>& airports, const Numbers& byIata,
                                     Report& report) {
    uniqueKeys(
        runways, "runway", [](const RunwayRow& r) { return r.airport.str() + " " + r.record.runwayId.str(); },
        report);
    uniqueKeys(
        radios, "airport", [](const RadioRow& r) { return r.airport.str(); }, report);
    std::vector<Facilities> out(airports.lines.size());
    for (const auto& [line, row] : runways.lines) {
        if (!report.goesOn()) break;
        const int airport = known(byIata, runways, line, "airport", row.airport.view(), anAirport, report);
        if (airport >= 0) out[static_cast<std::size_t>(airport)].runways.push_back(row.record);
    }
    std::vector<bool> hasRadios(out.size());
    for (const auto& [line, row] : radios.lines) {
        const int airport = known(byIata, radios, line, "airport", row.airport.view(), anAirport, report);
        if (airport < 0) continue;
        out[static_cast<std::size_t>(airport)].radios = row.record;
        hasRadios[static_cast<std::size_t>(airport)] = true;
    }
    for (std::size_t i = 0; i < out.size(); ++i)
        if (!hasRadios[i])
            report.error(airports.place(airports.lines[i].line, "iata"),
                         "a row in radios.csv for each airport",
                         "none for " + std::string(airports.lines[i].row.record.Iata.trimmed()));
    return out;
}

/// What stands in the names of a flight's files must be what a file name can take.
void warnOfName(const Place& place, std::string_view name, std::string_view stem, Report& report) {
    if (files::isFileName(stem)) return;
    report.warning(place, inQuotes(utf8FromText(trimmed(name))) +
                              " cannot stand in a file name: plans and situations of these flights cannot be "
                              "written");
}

void warnOfAirlines(const Table<AirlineRow>& table, Report& report) {
    for (const auto& [line, row] : table.lines) {
        const std::string_view name = row.record.Name.trimmed();
        warnOfName(table.place(line, "name"), name, std::string(name) + " Flight 1", report);
    }
}

void warnOfAirports(const Table<AirportRow>& table, Report& report) {
    for (const auto& [line, row] : table.lines) {
        const std::string_view code = row.record.Iata.view();
        warnOfName(table.place(line, "iata"), code, " to " + std::string(code) + ".pln", report);
    }
}

std::vector<AirlineRecord> airlinesOf(const Table<AirlineRow>& table, Report& report) {
    uniqueKeys(
        table, "code", [](const AirlineRow& r) { return r.record.Code.str(); }, report);
    warnOfAirlines(table, report);
    std::vector<AirlineRecord> out;
    for (const auto& line : table.lines) out.push_back(line.row.record);
    return out;
}

struct Codes {
    Numbers airports, airlines, aircraft;
};

/// Fills in the airports' numbers and checks every code.
void linkFlights(Table<FlightRow>& table, const Codes& codes, Report& report) {
    const auto find = [&](const Numbers& numbers, int line, const char* column, std::string_view code,
                          std::string_view expected) {
        return known(numbers, table, line, column, code, expected, report);
    };
    for (auto& [line, row] : table.lines) {
        if (!report.goesOn()) break;
        FlightRecord& f = row.record;
        f.OriginIndex =
            static_cast<std::int16_t>(find(codes.airports, line, "origin", f.OriginIata.view(), anAirport));
        f.DestIndex = static_cast<std::int16_t>(
            find(codes.airports, line, "destination", f.DestinationIata.view(), anAirport));
        find(codes.airlines, line, "airline", f.AirlineCode.view(), "the code of an airline in airlines.csv");
        find(codes.aircraft, line, "aircraft", f.AircraftCode.view(),
             "the code of an aircraft in aircraft.csv");
    }
}

/// An airport's record holds the number of its flights in 16 bits.
void limitFlights(const Table<FlightRow>& table, const char* column, std::int16_t FlightRecord::*airport,
                  Report& report) {
    constexpr int kMost = 32767;
    std::unordered_map<int, int> counts;
    for (const auto& [line, row] : table.lines) {
        if (!report.goesOn()) break;
        if (++counts[row.record.*airport] != kMost + 1) continue;
        report.error(table.place(line, column), "at most 32767 flights of one airport", "one more");
    }
}

std::vector<FlightRecord> groupedByOrigin(const Table<FlightRow>& table) {
    std::vector<FlightRecord> out;
    for (const auto& line : table.lines) out.push_back(line.row.record);
    std::stable_sort(out.begin(), out.end(), [](const FlightRecord& a, const FlightRecord& b) {
        return a.OriginIndex < b.OriginIndex;
    });
    return out;
}

template<class Row> auto recordsOf(const Table<Row>& table) {
    std::vector<decltype(Row::record)> out;
    for (const auto& line : table.lines) out.push_back(line.row.record);
    return out;
}

Numbers aircraftCodes(const World& world) {
    Numbers out;
    for (std::size_t i = 0; i < world.aircraft.size(); ++i)
        out.try_emplace(world.aircraft[i].Code.str(), static_cast<int>(i));
    return out;
}

/// The region of a row, which another row of the same point must not gainsay.
template<class Row>
void addRegion(const Table<Row>& table, const typename Table<Row>::Line& line, RegionEntry point,
               World& world, Report& report) {
    point.region = line.row.region.trimmed();
    if (point.region.empty()) return;
    const std::string known(world.regions.find(point.kind, point.ident, point.latitude, point.longitude));
    if (known.empty())
        world.regions.add(std::move(point));
    else if (known != point.region)
        report.error(table.place(line.line, "region"), known + ", as another row of this point has it",
                     inQuotes(point.region));
}

template<class Row>
void takeNavaids(const std::filesystem::path& folder, char kind, std::vector<NavaidRecord>& records,
                 World& world, Report& report) {
    const auto table = readTable<Row>(folder, report);
    for (const auto& line : table.lines) {
        const NavaidRecord& r = line.row.record;
        records.push_back(r);
        addRegion(table, line, {kind, std::string(r.navaidId.trimmed()), r.latitude, r.longitude, ""}, world,
                  report);
    }
}

void takeFixes(const std::filesystem::path& folder, World& world, Report& report) {
    const auto fixes = readTable<FixRow>(folder, report);
    for (const auto& line : fixes.lines) {
        const FixRecord& r = line.row.record;
        world.fixes.push_back(r);
        addRegion(fixes, line, {'I', std::string(r.fixName.trimmed()), r.latitude, r.longitude, ""}, world,
                  report);
    }
    const auto jets = readTable<JetRow>(folder, report);
    for (const auto& line : jets.lines) {
        const JetRecord& r = line.row.record;
        world.jets.push_back(r);
        addRegion(jets, line,
                  {r.jetKind.view()[0], std::string(r.jetName.trimmed()), r.latitude, r.longitude, ""}, world,
                  report);
    }
}

} // namespace

World readWorld(const std::filesystem::path& folder, Report& report) {
    const auto aircraft = readTable<AircraftRow>(folder, report);
    uniqueKeys(
        aircraft, "code", [](const AircraftRow& r) { return r.record.Code.str(); }, report);
    World world;
    world.aircraft = recordsOf(aircraft);
    takeNavaids<VorRow>(folder, 'V', world.vor, world, report);
    takeNavaids<NdbRow>(folder, 'N', world.ndb, world, report);
    takeFixes(folder, world, report);
    return world;
}

DataSet readDataSet(const std::filesystem::path& folder, const World& world, Report& report) {
    DataSet set;
    const auto airports = readTable<AirportRow>(folder, report);
    const auto runways = readTable<RunwayRow>(folder, report);
    const auto radios = readTable<RadioRow>(folder, report);
    const auto airlines = readTable<AirlineRow>(folder, report);
    auto flights = readTable<FlightRow>(folder, report);
    const auto plans = readTable<PlanRow>(folder, report);
    set.airports = airportsOf(airports, report);
    set.airlines = airlinesOf(airlines, report);
    if (report.stopped() || report.anyUnreadable())
        return set; // each reference to a missing table would be one more error
    report.reached(kTablesRead);

    Codes codes{indexBy(airports, [](const AirportRow& r) { return r.record.Iata.str(); }),
                indexBy(airlines, [](const AirlineRow& r) { return r.record.Code.str(); }),
                aircraftCodes(world)};
    set.facilities = facilitiesOf(runways, radios, airports, codes.airports, report);
    warnOfAirports(airports, report);
    linkFlights(flights, codes, report);
    limitFlights(flights, "origin", &FlightRecord::OriginIndex, report);
    limitFlights(flights, "destination", &FlightRecord::DestIndex, report);
    report.reached(kFlightsLinked);
    set.plans = linkPlans(plans, flights, world, report);
    set.flights = groupedByOrigin(flights);
    return set;
}

} // namespace gatewise::gt1
