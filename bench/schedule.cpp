#include "schedule_sqlite.h"
#include "schedule_world.h"

#include <benchmark/benchmark.h>
#include <cstdio>
#include <memory>
#include <numeric>

// Loading the airport index and the departures of one airport, beside a plain read of the same bytes and
// beside the same rows in a database file.

namespace gatewise::bench {
namespace {

constexpr std::size_t kAirports = 8000;
constexpr std::size_t kFlights = 100000;
constexpr int kDepartures = 1000;
constexpr int kFirstDeparture = 40000;

const Folder& folder() {
    static const Folder one;
    return one;
}

const Tables& tables() {
    static const Tables one = world(kAirports);
    return one;
}

const std::string& indexFile() {
    static const std::string path = folder().file("index.gt1", tables().airports, kAirports);
    return path;
}

const std::string& routesFile() {
    static const std::string path = folder().file("routes.gt1", flights(tables(), kFlights), kFlights);
    return path;
}

void fillAirports(Database& db) {
    db.run("CREATE TABLE airports (id INTEGER PRIMARY KEY, iata TEXT, icao TEXT, name TEXT, city TEXT, "
           "departure_offset INT, departure_count INT, elevation INT, latitude REAL, longitude REAL, "
           "arrival_offset INT, arrival_count INT, runway_count INT, runway_offset INT); BEGIN");
    Statement insert(db.handle(), "INSERT INTO airports VALUES (?,?,?,?,?,?,?,?,?,?,?,?,?,?)");
    for (std::size_t i = 0; i < kAirports; ++i) {
        const auto& a = tables().airports[i];
        insert.bind(1, static_cast<int>(i)).bind(2, a.Iata.view()).bind(3, a.Icao.view());
        insert.bind(4, a.Name.trimmed()).bind(5, a.City.trimmed()).bind(6, a.DepartureOffset);
        insert.bind(7, a.DepartureCount).bind(8, a.Elevation).bind(9, static_cast<double>(a.Latitude));
        insert.bind(10, static_cast<double>(a.Longitude)).bind(11, a.ArrivalOffset).bind(12, a.ArrivalCount);
        insert.bind(13, a.RunwayCount).bind(14, a.RunwayOffset).run();
    }
    db.run("COMMIT");
}

const std::string& airportsDatabase() {
    static const std::string path = [] {
        const std::string file = folder().path("airports.db");
        Database db(file);
        fillAirports(db);
        return file;
    }();
    return path;
}

void fillFlights(Database& db) {
    db.run("CREATE TABLE flights (origin INT, departs INT, destination INT, arrives INT, days INT, "
           "airline TEXT, number INT, aircraft TEXT, plan INT); BEGIN");
    {
        Statement insert(db.handle(), "INSERT INTO flights VALUES (?,?,?,?,?,?,?,?,?)");
        const auto all = flights(tables(), kFlights);
        for (std::size_t i = 0; i < all.size(); ++i) {
            const auto& f = all[i];
            insert.bind(1, static_cast<int>(i) / kDepartures).bind(2, f.DepartureTime).bind(3, f.DestIndex);
            insert.bind(4, f.ArrivalTime).bind(5, f.DaysMask).bind(6, f.AirlineCode.view());
            insert.bind(7, f.FlightNumber).bind(8, f.AircraftCode.view()).bind(9, f.PlanNumber).run();
        }
    }
    db.run("COMMIT; CREATE INDEX by_origin ON flights (origin)");
}

void LoadAirports(benchmark::State& state) {
    Tables loaded;
    for (auto _ : state) {
        if (!loadAirports(indexFile(), loaded)) state.SkipWithError("not loaded");
        benchmark::DoNotOptimize(loaded.airports.data());
    }
}
BENCHMARK(LoadAirports)->Unit(benchmark::kMicrosecond);

void PlainReadAndOnePass(benchmark::State& state) {
    for (auto _ : state) {
        std::FILE* file = std::fopen(indexFile().c_str(), "rb");
        Bytes bytes(kAirports * recordSize<AirportRecord>());
        if (std::fread(bytes.data(), 1, bytes.size(), file) != bytes.size()) state.SkipWithError("not read");
        std::fclose(file);
        benchmark::DoNotOptimize(std::accumulate(bytes.begin(), bytes.end(), 0U));
    }
}
BENCHMARK(PlainReadAndOnePass)->Unit(benchmark::kMicrosecond);

void DatabaseAirports(benchmark::State& state) {
    (void)airportsDatabase();
    for (auto _ : state) {
        Database db(airportsDatabase());
        Statement select(db.handle(), "SELECT * FROM airports");
        std::vector<AirportRecord> airports;
        while (select.row()) {
            auto& a = airports.emplace_back();
            a.Iata = select.text(1), a.Icao = select.text(2), a.Name = select.text(3),
            a.City = select.text(4);
            a.DepartureOffset = select.number(5), a.Elevation = select.number(7);
            a.DepartureCount = static_cast<std::int16_t>(select.number(6));
            a.Latitude = static_cast<float>(select.real(8)), a.Longitude = static_cast<float>(select.real(9));
            a.ArrivalOffset = select.number(10),
            a.ArrivalCount = static_cast<std::int16_t>(select.number(11));
            a.RunwayCount = select.number(12), a.RunwayOffset = select.number(13);
        }
        if (airports.size() != kAirports) state.SkipWithError("not selected");
    }
}
BENCHMARK(DatabaseAirports)->Unit(benchmark::kMicrosecond);

void LoadDepartures(benchmark::State& state) {
    const int offset = kFirstDeparture * static_cast<int>(recordSize<FlightRecord>()) + 1;
    std::vector<FlightRecord> list;
    for (auto _ : state) {
        if (!loadFlights(routesFile(), offset, kDepartures, list)) state.SkipWithError("not loaded");
        benchmark::DoNotOptimize(list.data());
    }
}
BENCHMARK(LoadDepartures)->Unit(benchmark::kMicrosecond);

void DatabaseDepartures(benchmark::State& state) {
    Database db(folder().path("flights" + std::to_string(state.range(0)) + ".db"));
    db.run("DROP TABLE IF EXISTS flights");
    fillFlights(db);
    Statement select(db.handle(), "SELECT * FROM flights WHERE origin = ?");
    for (auto _ : state) {
        std::vector<FlightRecord> list;
        select.bind(1, kFirstDeparture / kDepartures);
        while (select.row()) {
            auto& f = list.emplace_back();
            f.DepartureTime = static_cast<std::int16_t>(select.number(1));
            f.DestIndex = static_cast<std::int16_t>(select.number(2));
            f.ArrivalTime = static_cast<std::int16_t>(select.number(3));
            f.DaysMask = static_cast<std::uint8_t>(select.number(4));
            f.AirlineCode = select.text(5), f.AircraftCode = select.text(7);
            f.FlightNumber = static_cast<std::int16_t>(select.number(6));
            f.PlanNumber = select.number(8);
        }
        select.reset();
        if (list.size() != kDepartures) state.SkipWithError("not selected");
    }
}
BENCHMARK(DatabaseDepartures)->Arg(0)->Unit(benchmark::kMicrosecond);

/// The arrivals of an airport, scattered over the whole file (0) or close together (1).
void LoadArrivals(benchmark::State& state) {
    const std::string list = folder().path("arrivals" + std::to_string(state.range(0)) + ".gt1");
    Bytes bytes;
    for (int i = 0; i < kDepartures; ++i) {
        const int flight = state.range(0) == 0 ? i * 97 : kFirstDeparture + i * 2;
        appendField(bytes, static_cast<std::int32_t>(flight * 32 + 1));
    }
    if (files::replace(list, bytes)) state.SkipWithError("not written");
    std::vector<FlightRecord> found;
    for (auto _ : state) {
        if (!loadArrivals(list, routesFile(), 1, kDepartures, found)) state.SkipWithError("not loaded");
        benchmark::DoNotOptimize(found.data());
    }
}
BENCHMARK(LoadArrivals)->Arg(0)->Arg(1)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace gatewise::bench
