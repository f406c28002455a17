#include "import/Import.h"

#include "gt1/Commands.h"
#include "gt1/Rows.h"
#include "gt1/Tables.h"
#include "import/Airlines.h"
#include "import/Grow.h"
#include "import/ImportReport.h"
#include "import/Routes.h"
#include "import/Timetable.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <map>

namespace gatewise::importer {

namespace {

/// How much of the step that makes the tables is done.
constexpr double kFlightsFrom = 0.1;
constexpr double kPlansFrom = 0.3;
constexpr double kSharedFrom = 0.6;

using PairKey = std::pair<std::string, std::string>; // IATA, the first in the alphabet first

PairKey keyOf(const Flight& flight) {
    return std::minmax(flight.origin, flight.destination);
}

/// The question that the writing of tables asks for every row.
std::function<bool()> asking(const Job& job) {
    return [walk = Walk(job, 0)]() mutable { return walk.goesOn(); };
}

/// The routes of all airport pairs that the flights have, and the plans made of them: there, then back.
class Planner {
public:
    Planner(const Network& network, const Airports& airports, std::vector<Flight>& flights)
        : network_(network), airports_(airports), flights_(flights) {
        for (const Flight& flight : flights) numbers_.try_emplace(keyOf(flight), 0);
        int next = 1;
        for (auto& [key, number] : numbers_) {
            number = next;
            next += 2;
            used_.push_back({false, false});
        }
        for (const Flight& flight : flights) used_[indexOf(flight)][isBack(flight)] = true;
    }

    void find(const Job& job) {
        std::vector<std::pair<Place, Place>> places;
        for (const auto& [key, number] : numbers_)
            places.emplace_back(placeOf(key.first), placeOf(key.second));
        routes_ = findRoutes(network_, places, job);
    }

    void measure() {
        for (Flight& flight : flights_) {
            const RoutePair& pair = routes_[indexOf(flight)];
            const double miles = isBack(flight) ? pair.back.miles : pair.there.miles;
            if (flight.miles < 0)
                flight.miles = static_cast<int>(std::clamp(std::round(miles), 0.0, 32767.0));
        }
    }

    [[nodiscard]] int plan(const Flight& flight) const {
        return numbers_.at(keyOf(flight)) + (isBack(flight) ? 1 : 0);
    }

    gt1::NamedTable plans(SharedTables& shared, const Job& job) const {
        struct Entry {
            char kind = 'I';
            std::size_t record = 0;
        };
        std::map<std::pair<std::uint32_t, bool>, Entry> entries;
        Walk walk(job, 3 * routes_.size(), kPlansFrom, kSharedFrom);
        for (const RoutePair& pair : routes_)
            for (const RoutePoint& p : pair.there.points)
                if (walk.goesOn()) remember(p, shared, entries);
        for (const RoutePair& pair : routes_)
            for (const RoutePoint& p : pair.back.points)
                if (walk.goesOn()) remember(p, shared, entries);
        if (job.cancelled()) return {};
        const gt1::WorldNames names(shared.world());
        std::vector<gt1::PlanRow> rows;
        std::size_t index = 0;
        for (const auto& [key, number] : numbers_) {
            if (!walk.goesOn()) return {};
            const RoutePair& pair = routes_[index];
            addPlan(number, key.first, key.second, used_[index][0], pair.there, names, entries, rows);
            addPlan(number + 1, key.second, key.first, used_[index][1], pair.back, names, entries, rows);
            ++index;
        }
        return {std::string(gt1::PlanRow::file), gt1::tableText(rows, asking(job))};
    }

    void count(ImportCounts& counts) const {
        counts.pairs = routes_.size();
        for (const RoutePair& pair : routes_) {
            if (pair.there.found == Found::Navaids) ++counts.byNavaids;
            if (pair.there.found == Found::Direct) ++counts.direct;
        }
    }

private:
    static bool isBack(const Flight& flight) { return flight.origin > flight.destination; }

    [[nodiscard]] std::size_t indexOf(const Flight& flight) const {
        return static_cast<std::size_t>((numbers_.at(keyOf(flight)) - 1) / 2);
    }

    [[nodiscard]] Place placeOf(const std::string& iata) const {
        return airports_.all[static_cast<std::size_t>(airports_.find(iata))].place;
    }

    template<class Entries> void remember(const RoutePoint& p, SharedTables& shared, Entries& entries) const {
        const Point& point = network_.points[p.point];
        const bool jet = p.high && point.high;
        auto [at, isNew] = entries.try_emplace({p.point, p.high});
        if (isNew) at->second = {jet ? 'H' : point.kind, jet ? shared.jet(point) : shared.record(point)};
    }

    template<class Entries>
    void addPlan(int number, const std::string& from, const std::string& to, bool used, const Route& route,
                 const gt1::WorldNames& names, const Entries& entries,
                 std::vector<gt1::PlanRow>& rows) const {
        gt1::PlanRow row;
        row.plan = number;
        if (used) row.origin = from;
        if (used) row.destination = to;
        if (route.points.empty()) rows.push_back(row);
        for (const RoutePoint& p : route.points) {
            const auto& entry = entries.at({p.point, p.high});
            ++row.sequence;
            row.kind = std::string_view(&entry.kind, 1);
            row.fix = *names.ofKind(entry.kind)->name(static_cast<long long>(entry.record));
            row.airway = p.airway;
            rows.push_back(row);
        }
    }

    const Network& network_;
    const Airports& airports_;
    std::vector<Flight>& flights_;
    std::map<PairKey, int> numbers_;
    std::vector<std::array<bool, 2>> used_; // by a flight: there, back
    std::vector<RoutePair> routes_;
};

int hhmm(int minutes) {
    return minutes / 60 * 100 + minutes % 60;
}

gt1::NamedTable flightTable(const std::vector<Flight>& flights, const Planner& planner, const Job& job) {
    std::vector<gt1::FlightRow> rows;
    rows.reserve(flights.size());
    Walk walk(job, flights.size(), kFlightsFrom, kPlansFrom);
    for (const Flight& flight : flights) {
        if (!walk.goesOn()) return {};
        gt1::FlightRow row;
        FlightRecord& r = row.record;
        r.OriginIata = flight.origin;
        r.DepartureTime = static_cast<std::int16_t>(hhmm(flight.departure));
        r.DestinationIata = flight.destination;
        r.ArrivalTime = static_cast<std::int16_t>(hhmm(flight.arrival));
        r.Miles = static_cast<std::int16_t>(flight.miles);
        r.DaysMask = flight.days;
        r.AirlineCode = flight.airline;
        r.FlightNumber = static_cast<std::int16_t>(flight.number);
        r.AircraftCode = flight.type;
        r.ClassCode = std::string_view(&flight.classCode, 1);
        r.MealMask = static_cast<std::uint8_t>(flight.meals);
        r.Reserved1 = flight.reserved;
        r.PlanNumber = planner.plan(flight);
        rows.push_back(row);
    }
    return {std::string(gt1::FlightRow::file), gt1::tableText(rows, asking(job))};
}

void airportTables(const Airports& airports, std::vector<gt1::NamedTable>& out) {
    std::vector<AirportRecord> records;
    std::vector<gt1::RunwayRow> runways;
    std::vector<gt1::RadioRow> radios;
    for (const Airport& airport : airports.all) {
        records.push_back(airport.record);
        for (const RunwayRecord& runway : airport.facilities.runways)
            runways.push_back({airport.record.Iata, runway});
        radios.push_back({airport.record.Iata, airport.facilities.radios});
    }
    out.push_back(gt1::tableOf<gt1::AirportRow>(records));
    out.push_back({std::string(gt1::RunwayRow::file), gt1::tableText(runways)});
    out.push_back({std::string(gt1::RadioRow::file), gt1::tableText(radios)});
}

void growShared(SharedTables& shared, const Network& network, const std::vector<Flight>& flights,
                const AircraftTypes& types, const Job& job) {
    std::set<std::string> codes;
    for (const Flight& flight : flights) codes.insert(flight.type);
    for (const AircraftType& type : types.all())
        if (codes.contains(type.code)) shared.aircraft(type.record);
    Walk walk(job, network.points.size(), 0, kFlightsFrom);
    for (const Point& point : network.points) {
        if (!walk.goesOn()) return;
        shared.record(point);
        if (point.high) shared.jet(point);
    }
}

void countFlights(const std::vector<Flight>& flights, ImportCounts& counts) {
    for (const Flight& flight : flights)
        ++(flight.from == Origin::Own     ? counts.own
           : flight.from == Origin::Flown ? counts.flown
                                          : counts.made);
}

/// From the rows of the sources to the tables of the set.
void build(RawTables& raw, const gt1::World& given, const ImportOptions& options, Findings& findings,
           const Job& job, Imported& out) {
    job.step("Airports");
    const AircraftTypes types;
    Airports airports = makeAirports(raw, findings, job);
    if (job.cancelled()) return;
    job.step("Timetable");
    std::vector<Flight> flights = makeTimetable(raw, airports, types, options.everyFlight, findings, job);
    if (job.cancelled()) return;
    std::set<std::string> used, codes;
    for (const Flight& flight : flights) {
        used.insert({flight.origin, flight.destination});
        codes.insert(flight.airline);
    }
    keepUsed(airports, used, findings);
    if (airports.all.empty())
        out.faults.emplace_back("no airports: the sources have no table of airports with both codes");
    if (!out.faults.empty()) return;
    job.step("Navigation");
    const Network network = makeNetwork(raw, findings, job);
    if (job.cancelled()) return;
    job.step("Routes");
    Planner planner(network, airports, flights);
    planner.find(job);
    if (job.cancelled()) return;
    planner.measure();
    job.step("Tables");
    SharedTables shared(given);
    growShared(shared, network, flights, types, job);
    if (job.cancelled()) return;
    airportTables(airports, out.tables);
    const auto airlines = makeAirlines(raw, codes, findings);
    out.tables.push_back(gt1::tableOf<gt1::AirlineRow>(airlines));
    out.tables.push_back(flightTable(flights, planner, job));
    out.tables.push_back(planner.plans(shared, job));
    if (job.cancelled()) return;
    job.progress(kSharedFrom);
    out.shared = gt1::worldTables(shared.world(), asking(job));
    out.world = shared.world();
    out.counts = {airports.all.size(),   airlines.size(), 0, 0, 0, 0, 0, 0,
                  shared.grownRegions(), shared.grown()};
    countFlights(flights, out.counts);
    planner.count(out.counts);
}

} // namespace

Imported makeImport(const std::vector<Source>& sources, const gt1::World& shared,
                    const ImportOptions& options, const Job& job) {
    Imported out;
    Findings findings;
    RawTables raw = readSources(sources, options.skipUnknown, findings, out.faults, job);
    out.files = raw.files;
    out.name = options.name.empty() ? defaultName(raw) : options.name;
    if (out.faults.empty() && !job.cancelled()) build(raw, shared, options, findings, job, out);
    out.cancelled = job.cancelled();
    if (out.cancelled) out.tables.clear();
    out.sources = sourcesText(raw);
    out.report = reportText(out, raw, findings);
    return out;
}

} // namespace gatewise::importer
