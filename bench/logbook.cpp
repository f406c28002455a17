// A log book of 10,000 entries, read and paged, beside the same log in a database file.

#include "logbook/LogBook.h"
#include "logbook/LogExchange.h"
#include "logbook/LogTexts.h"
#include "platform/Files.h"
#include "schedule_sqlite.h"

#include <benchmark/benchmark.h>
#include <filesystem>

namespace gatewise {
namespace {

constexpr int kLastPage = (kLogEntries - 1) / kLogRows + 1;

std::vector<LogRecord> fullLog() {
    std::vector<LogRecord> entries(kLogEntries);
    for (std::size_t i = 0; i < entries.size(); ++i) {
        entries[i].departureIcao = "KATL";
        entries[i].arrivalIcao = "KORD";
        entries[i].departureName = "Hartsfield-Jackson Atlanta Intl";
        entries[i].arrivalName = "O'Hare Intl";
        entries[i].comments = "Entry " + std::to_string(i);
        entries[i].dayHours = static_cast<float>(i % 50) / 10;
        entries[i].instrumentHours = 0.3F;
    }
    return entries;
}

/// The same entries on disk, as a log book and as a database.
struct Fixture {
    Fixture() {
        folder = std::filesystem::temp_directory_path() / "gatewise-bench-log";
        std::filesystem::create_directories(folder);
        const auto entries = fullLog();
        LogStore().rewrite(book(), entries, 1);
        std::filesystem::remove(folder / "log.db");
        bench::Database db(database());
        db.run("create table log (id integer primary key, dept text, deptname text, arr text, arrname text, "
               "day real, "
               "night real, inst real, notes text)");
        db.run("begin");
        bench::Statement insert(db.handle(), "insert into log values (?, ?, ?, ?, ?, ?, ?, ?, ?)");
        int id = 0;
        for (const auto& e : entries) {
            insert.bind(1, id++).bind(2, e.departureIcao.view()).bind(3, e.departureName.view());
            insert.bind(4, e.arrivalIcao.view()).bind(5, e.arrivalName.view());
            insert.bind(6, static_cast<double>(e.dayHours)).bind(7, static_cast<double>(e.nightHours));
            insert.bind(8, static_cast<double>(e.instrumentHours)).bind(9, e.comments.view()).run();
        }
        db.run("commit");
    }
    ~Fixture() { std::filesystem::remove_all(folder); }
    [[nodiscard]] std::string book() const { return (folder / "LogBook.gt1").string(); }
    [[nodiscard]] std::string database() const { return (folder / "log.db").string(); }
    std::filesystem::path folder;
};

const Fixture& fixture() {
    static const Fixture made;
    return made;
}

void loadLogBook(benchmark::State& state) {
    const std::string path = fixture().book();
    for (auto _ : state) benchmark::DoNotOptimize(readLogBook(path));
}
BENCHMARK(loadLogBook)->Unit(benchmark::kMillisecond);

/// The whole load as the program does it, the times that came back from the simulator included.
void loadLogBookAndMerge(benchmark::State& state) {
    const std::string path = fixture().book();
    const std::string exchange = (fixture().folder / "logrecords.gt1").string();
    WriteLogRecords(exchange, fullLog());
    for (auto _ : state) {
        auto entries = readLogBook(path);
        MergeLogRecords(exchange, entries);
        benchmark::DoNotOptimize(entries);
    }
}
BENCHMARK(loadLogBookAndMerge)->Unit(benchmark::kMillisecond);

void loadDatabase(benchmark::State& state) {
    for (auto _ : state) {
        bench::Database db(fixture().database());
        bench::Statement all(
            db.handle(), "select dept, deptname, arr, arrname, day, night, inst, notes from log order by id");
        std::vector<LogRecord> entries;
        while (all.row()) {
            LogRecord e;
            e.departureIcao = all.text(0), e.departureName = all.text(1);
            e.arrivalIcao = all.text(2), e.arrivalName = all.text(3);
            e.dayHours = static_cast<float>(all.real(4)), e.nightHours = static_cast<float>(all.real(5));
            e.instrumentHours = static_cast<float>(all.real(6));
            e.comments = all.text(7);
            entries.push_back(e);
        }
        benchmark::DoNotOptimize(entries);
    }
}
BENCHMARK(loadDatabase)->Unit(benchmark::kMillisecond);

void turnToLastPage(benchmark::State& state) {
    const auto entries = fullLog();
    const NumberLocale numbers;
    for (auto _ : state) benchmark::DoNotOptimize(logPageTexts(entries, kLastPage, numbers));
}
BENCHMARK(turnToLastPage)->Unit(benchmark::kMicrosecond);

void turnToLastPageInDatabase(benchmark::State& state) {
    bench::Database db(fixture().database());
    bench::Statement rows(db.handle(),
                          "select dept, deptname, arr, arrname, day, night, inst, notes from log "
                          "where id >= ? order by id limit 7");
    bench::Statement sums(db.handle(), "select sum(day + night), sum(inst) from log where id < ?");
    const int first = (kLastPage - 1) * kLogRows;
    for (auto _ : state) {
        rows.bind(1, first);
        while (rows.row()) benchmark::DoNotOptimize(std::string(rows.text(7)));
        rows.reset();
        sums.bind(1, first);
        if (sums.row()) benchmark::DoNotOptimize(sums.real(0) + sums.real(1));
        sums.reset();
    }
}
BENCHMARK(turnToLastPageInDatabase)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace gatewise
