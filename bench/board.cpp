#include "board/Board.h"

#include "schedule/Lookups.h"
#include "schedule_sqlite.h"
#include "schedule_world.h"

#include <benchmark/benchmark.h>

// A board of 2,000 flights rebuilt and sorted, beside the same selection through a database in memory with
// an index and a prepared statement, its rows fetched.

namespace gatewise::bench {
namespace {

constexpr std::size_t kFlights = 2000;
constexpr int kMonday = 1;

struct Airport {
    Tables tables = world(300);
    std::vector<FlightRecord> flights = bench::flights(tables, kFlights);
};

const Airport& airport() {
    static const Airport one;
    return one;
}

BoardRequest request(std::int64_t sort) {
    // At midnight every flight of the day is still ahead.
    return {FixedText<3>(kAnyAirlineCode), kMonday, "00", "00", static_cast<BoardSort>(sort)};
}

void BuildBoard(benchmark::State& state) {
    BoardLists lists;
    for (auto _ : state) {
        BuildDepartures(airport().flights, airport().tables, request(state.range(0)), lists);
        benchmark::DoNotOptimize(lists.BoardRows.data());
    }
    state.counters["rows"] = lists.BoardRowCount + 1;
}
BENCHMARK(BuildBoard)->ArgName("sort")->Arg(1)->Arg(2)->Arg(3)->Unit(benchmark::kMicrosecond);

void BuildBoardOfArrivals(benchmark::State& state) {
    BoardLists lists;
    for (auto _ : state) {
        BuildArrivals(airport().flights, airport().tables, request(state.range(0)), lists);
        benchmark::DoNotOptimize(lists.BoardRows.data());
    }
    state.counters["rows"] = lists.BoardRowCount + 1;
}
BENCHMARK(BuildBoardOfArrivals)->ArgName("sort")->Arg(2)->Unit(benchmark::kMicrosecond);

void fill(Database& db) {
    db.run(
        "CREATE TABLE airports (id INTEGER PRIMARY KEY, icao TEXT, name TEXT, city TEXT);"
        "CREATE TABLE flights (id INTEGER PRIMARY KEY, origin INT, destination INT, departs INT, hhmm TEXT,"
        " days INT, airline TEXT, number TEXT); BEGIN");
    Statement airports(db.handle(), "INSERT INTO airports VALUES (?,?,?,?)");
    for (std::size_t i = 0; i < airport().tables.airports.size(); ++i) {
        const auto& a = airport().tables.airports[i];
        airports.bind(1, static_cast<int>(i)).bind(2, a.Icao.view());
        airports.bind(3, a.Name.trimmed()).bind(4, a.City.trimmed()).run();
    }
    Statement flights(db.handle(), "INSERT INTO flights VALUES (?,?,?,?,?,?,?,?)");
    for (std::size_t i = 0; i < kFlights; ++i) {
        const auto& f = airport().flights[i];
        const auto digits = [](int value) { return std::to_string(10000 + value).substr(1); };
        flights.bind(1, static_cast<int>(i)).bind(2, f.OriginIndex).bind(3, f.DestIndex);
        flights.bind(4, f.DepartureTime / 100 * 60 + f.DepartureTime % 100).bind(5, digits(f.DepartureTime));
        flights.bind(6, f.DaysMask).bind(7, f.AirlineCode.view()).bind(8, digits(f.FlightNumber)).run();
    }
    db.run("COMMIT; CREATE INDEX by_origin ON flights (origin, departs); ANALYZE");
}

void DatabaseBoard(benchmark::State& state) {
    Database db(":memory:");
    fill(db);
    static const char* const keys[] = {"", "city", "hhmm", "flight"};
    Statement select(
        db.handle(),
        std::string("SELECT ' ' || f.airline || f.number AS flight, d.city || ',' || d.name AS city,"
                    " f.hhmm AS hhmm, f.departs - ?1 AS d, f.id FROM flights f"
                    " JOIN airports o ON o.id = f.origin JOIN airports d ON d.id = f.destination"
                    " WHERE f.origin = 0 AND f.departs >= ?1 - 60 AND f.days & ?2"
                    " AND o.icao <> d.icao ORDER BY ") +
            keys[state.range(0)]);
    std::vector<BoardEntry> rows;
    for (auto _ : state) {
        rows.clear();
        select.bind(1, 0).bind(2, kMonday);
        while (select.row()) {
            auto& row = rows.emplace_back();
            row.FlightText = select.text(0), row.CityText = select.text(1), row.TimeText = select.text(2);
            row.Minutes = static_cast<std::int16_t>(select.number(3));
            row.FlightIndex = select.number(4);
        }
        select.reset();
        benchmark::DoNotOptimize(rows.data());
    }
    state.counters["rows"] = static_cast<double>(rows.size());
}
BENCHMARK(DatabaseBoard)->ArgName("sort")->Arg(1)->Arg(2)->Arg(3)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace gatewise::bench
