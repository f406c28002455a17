// A career of 10,000 entries over 500 airports: the sums, and all that the screen shows of them.

#include "career/CareerPictures.h"
#include "logbook/LogImport.h"
#include "logbook/LogListing.h"
#include "map/MapDrawing.h"
#include "platform/Machine.h"

#include <benchmark/benchmark.h>

namespace gatewise {
namespace {

constexpr int kAirports = 500;

std::string codeOf(int airport) {
    return std::string("K") + static_cast<char>('A' + airport / 100) +
           static_cast<char>('A' + airport / 10 % 10) + static_cast<char>('A' + airport % 10);
}

Tables world() {
    Tables tables;
    for (int i = 0; i < 10000; ++i) {
        AirportRecord airport;
        airport.Icao = i < kAirports ? codeOf(i) : "X" + std::to_string(i).substr(1);
        airport.Latitude = static_cast<float>(i % 120 - 60);
        airport.Longitude = static_cast<float>(i * 37 % 360 - 180);
        tables.airports.insert(tables.airports.end() - 1, airport);
    }
    tables.aircraft.resize(200);
    return tables;
}

std::vector<LogRecord> fullLog() {
    std::vector<LogRecord> log(kLogEntries);
    for (int i = 0; i < kLogEntries; ++i) {
        LogRecord& e = log[static_cast<std::size_t>(i)];
        e.date = static_cast<double>(daySerial({1990, 1, 1}) + i);
        e.departureIcao = codeOf(i % kAirports);
        e.arrivalIcao = codeOf(i * 7 % kAirports);
        e.aircraft = "Aircraft " + std::to_string(i % 40);
        e.airline = "Airline " + std::to_string(i % 90);
        e.flightNumber = static_cast<std::int16_t>(i);
        e.dayHours = 1.5F;
    }
    return log;
}

void sumCareer(benchmark::State& state) {
    const Tables tables = world();
    const auto log = fullLog();
    for (auto _ : state) benchmark::DoNotOptimize(careerOf(log, tables));
}
BENCHMARK(sumCareer)->Unit(benchmark::kMillisecond);

/// Choices, sums, table, bars and the map with all of it in sight.
void showCareer(benchmark::State& state) {
    const Tables tables = world();
    const auto log = fullLog();
    const NumberLocale numbers;
    const map::Sheet sheet;
    for (auto _ : state) {
        benchmark::DoNotOptimize(careerChoices(log));
        const Career career = careerOf(log, tables);
        benchmark::DoNotOptimize(careerRows(career, numbers));
        benchmark::DoNotOptimize(careerBars(career));
        const MapScene scene = careerScene(career, nullptr);
        benchmark::DoNotOptimize(map::drawMap(scene, map::fitted(scene, sheet.size), sheet));
    }
}
BENCHMARK(showCareer)->Unit(benchmark::kMillisecond);

void lookAtLogBook(benchmark::State& state) {
    const auto log = fullLog();
    const std::string text = logCsv(log);
    for (auto _ : state) benchmark::DoNotOptimize(importLog(text, log));
}
BENCHMARK(lookAtLogBook)->Unit(benchmark::kMillisecond);

} // namespace
} // namespace gatewise
