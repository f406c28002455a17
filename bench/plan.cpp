#include "plan/Build.h"
#include "plan/Geometry.h"
#include "plan/GetFlightPlan.h"
#include "platform/Files.h"

#include <benchmark/benchmark.h>
#include <filesystem>
#include <unistd.h>

// A route of 28 points and 7,000 miles: computed, retrieved, and beside it what its record reads cost alone.

namespace {

using namespace gatewise;

constexpr int kPoints = 28;
constexpr int kVorRecords = 10'000; // files as large as the world's
constexpr int kFixRecords = 60'000;

/// The i-th fix on the way from 50 north to 8 south and 113 east.
float latitudeOf(int i) {
    return 50.0F - 58.0F * static_cast<float>(i + 1) / (kPoints + 1);
}
float longitudeOf(int i) {
    return 113.0F * static_cast<float>(i + 1) / (kPoints + 1);
}

/// Every other point is a VOR, the records far apart.
bool isVor(int i) {
    return i % 2 == 0;
}
int recordOf(int i) {
    return i * (isVor(i) ? kVorRecords : kFixRecords) / kPoints;
}

class World {
public:
    World() : folder_(std::filesystem::temp_directory_path() / ("bench_plan_" + std::to_string(::getpid()))) {
        std::filesystem::create_directories(folder_ / "Data");
        files = planFiles(files::textOf(folder_), "\\Data");
        makeTables();
        writePlan();
        writeNavaids();
        Bytes facilities(34 * 8 + 42, ' ');
        (void)files::replace(files.APT, facilities);
    }
    ~World() {
        std::error_code ignored;
        std::filesystem::remove_all(folder_, ignored);
    }

    [[nodiscard]] PlanInput input() const { return {tables, flight, false, 0, files}; }

    Tables tables;
    FlightRecord flight;
    PlanFiles files;

private:
    void makeTables() {
        tables.airports.resize(3);
        for (int i = 0; i < 2; ++i) {
            AirportRecord& airport = tables.airports[static_cast<std::size_t>(i)];
            airport.Iata = std::string_view(i == 0 ? "AAA" : "BBB");
            airport.Icao = std::string_view(i == 0 ? "KAAA" : "KBBB");
            airport.Latitude = latitudeOf(i == 0 ? -1 : kPoints);
            airport.Longitude = longitudeOf(i == 0 ? -1 : kPoints);
            airport.RunwayCount = 4;
            airport.RunwayOffset = 1;
        }
        AircraftRecord aircraft;
        aircraft.Code = std::string_view("744");
        aircraft.CruiseAltitude = 41000;
        aircraft.ClimbRate = 2000;
        aircraft.DescentRate = 2000;
        aircraft.CruiseSpeedTAS = 490;
        tables.aircraft = {aircraft};
        flight.OriginIata = std::string_view("AAA");
        flight.DestinationIata = std::string_view("BBB");
        flight.AircraftCode = std::string_view("744");
    }

    void writePlan() const {
        Bytes bytes;
        appendField(bytes, std::int32_t{5});
        appendField(bytes, static_cast<std::int16_t>(kPoints));
        for (int i = 0; i < kPoints; ++i) {
            RouteEntry entry;
            entry.entryKind = std::string_view(isVor(i) ? "V" : "I");
            entry.entryRecord = recordOf(i);
            entry.entryAirway = std::string_view(i % 5 == 0 ? "" : "UL888");
            appendRecord(bytes, entry);
        }
        (void)files::replace(files.Plans, bytes);
    }

    void writeNavaids() const {
        std::vector<NavaidRecord> vors(kVorRecords);
        std::vector<FixRecord> fixes(kFixRecords);
        for (int i = 0; i < kPoints; ++i) {
            const auto at = static_cast<std::size_t>(recordOf(i));
            if (isVor(i)) {
                vors[at].navaidId = "V" + std::to_string(i);
                vors[at].latitude = latitudeOf(i);
                vors[at].longitude = longitudeOf(i);
            } else {
                fixes[at].fixName = "FIX" + std::to_string(i);
                fixes[at].latitude = latitudeOf(i);
                fixes[at].longitude = longitudeOf(i);
            }
        }
        Bytes bytes;
        for (const NavaidRecord& record : vors) appendRecord(bytes, record);
        (void)files::replace(files.VOR, bytes);
        bytes.clear();
        for (const FixRecord& record : fixes) appendRecord(bytes, record);
        (void)files::replace(files.ISC, bytes);
    }

    std::filesystem::path folder_;
};

const World& world() {
    static const World one;
    return one;
}

void ComputePlan(benchmark::State& state) {
    const PlanInput input = world().input();
    Plan loaded;
    loadFlightPlan(loaded, 1, input);
    Plan filed = loaded;
    filed.planLast = kPoints + 1;
    int n = 1;
    for (int i = 1; i < loaded.planLast; ++i) {
        if (!loaded.at(i).computed()) filed.at(n++) = loaded.at(i);
    }
    Plan plan;
    for (auto _ : state) {
        plan = filed;
        buildPlan(plan, input);
        benchmark::DoNotOptimize(plan);
    }
    if (plan.planLast != loaded.planLast) state.SkipWithError("the plan is another one");
    state.counters["miles"] = static_cast<double>(plan.totalDistance);
    state.counters["points"] = plan.planLast + 1;
}
BENCHMARK(ComputePlan)->Unit(benchmark::kMicrosecond);

void RetrievePlan(benchmark::State& state) {
    const PlanInput input = world().input();
    Plan plan;
    for (auto _ : state) {
        loadFlightPlan(plan, 1, input);
        benchmark::DoNotOptimize(plan);
    }
    state.counters["miles"] = static_cast<double>(plan.totalDistance);
}
BENCHMARK(RetrievePlan)->Unit(benchmark::kMicrosecond);

/// The same files opened, the same records read, nothing made of them.
void RecordReadsAlone(benchmark::State& state) {
    const PlanFiles& paths = world().files;
    for (auto _ : state) {
        {
            const files::RecordFile plans(paths.Plans);
            benchmark::DoNotOptimize(plans.number<std::int32_t>(0));
            benchmark::DoNotOptimize(plans.number<std::int16_t>(4));
            benchmark::DoNotOptimize(plans.records<RouteEntry>(6, kPoints));
        }
        {
            const files::RecordFile vors(paths.VOR);
            const files::RecordFile fixes(paths.ISC);
            for (int i = 0; i < kPoints; ++i) {
                if (isVor(i))
                    benchmark::DoNotOptimize(vors.record<NavaidRecord>(recordOf(i) * 46LL));
                else
                    benchmark::DoNotOptimize(fixes.record<FixRecord>(recordOf(i) * 20LL));
            }
        }
        const files::RecordFile airports(paths.APT);
        for (int i = 0; i < 2; ++i) {
            benchmark::DoNotOptimize(airports.records<RunwayRecord>(0, 4));
            benchmark::DoNotOptimize(airports.record<RadioRecord>(34 * 4));
        }
    }
}
BENCHMARK(RecordReadsAlone)->Unit(benchmark::kMicrosecond);

/// One scan of the largest airport table, as the search for an alternate makes it.
void DistanceScan(benchmark::State& state) {
    float course = 0;
    for (auto _ : state) {
        float best = 10000;
        for (int i = 0; i < 32767; ++i) {
            const float latitude = static_cast<float>(i % 170) - 85.0F;
            const float longitude = static_cast<float>(i % 359) - 179.0F;
            const float miles = Distance(47.45F, -122.31F, latitude, longitude, course);
            if (miles > 50 && miles < best) best = miles;
        }
        benchmark::DoNotOptimize(best);
    }
}
BENCHMARK(DistanceScan)->Unit(benchmark::kMicrosecond);

} // namespace
