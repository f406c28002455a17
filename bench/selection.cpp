#include "plan/Geometry.h"
#include "schedule_world.h"
#include "selection/Nearest.h"

#include <benchmark/benchmark.h>
#include <cmath>
#include <cstring>
#include <numeric>

// The search over all airports and the nearest 25, each beside its plain method; the search also beside
// memmem over a folded table of the same fields. Every run first checks that all of them find the same.

namespace gatewise::bench {
namespace {

const Tables& tables(std::int64_t airports) {
    static const Tables some = world(8000);
    static const Tables most = world(32766); // with the blank one as many as an index can name
    return airports == 8000 ? some : most;
}

const AirportFinder& finder(std::int64_t airports) {
    static const AirportFinder some(tables(8000).airports);
    static const AirportFinder most(tables(32767).airports);
    return airports == 8000 ? some : most;
}

constexpr const char* kTexts[] = {"ATL", "ford", "International", "e", " ", "Port stead"};

std::vector<std::int32_t> plainSearch(const Tables& world, std::string_view text) {
    std::vector<std::int32_t> found;
    for (std::size_t i = 0; i < world.airports.size(); ++i) {
        const auto& a = world.airports[i];
        if (containsNoCase(a.Iata.view(), text) || containsNoCase(a.Icao.view(), text) ||
            containsNoCase(a.Name.view(), text) || containsNoCase(a.City.view(), text))
            found.push_back(static_cast<std::int32_t>(i));
    }
    return found;
}

constexpr std::size_t kRow = 3 + 1 + 4 + 1 + 35 + 1 + 33 + 1;

const std::string& foldedTable(std::int64_t airports) {
    const auto fold = [](const Tables& world) {
        std::string out;
        for (const auto& a : world.airports)
            out += upperCase(a.Iata.str() + '\0' + a.Icao.str() + '\0' + a.Name.str() + '\0' + a.City.str() +
                             '\0');
        return out;
    };
    static const std::string some = fold(tables(8000));
    static const std::string most = fold(tables(32767));
    return airports == 8000 ? some : most;
}

std::vector<std::int32_t> memmemSearch(const std::string& table, std::string_view text) {
    const std::string folded = upperCase(text);
    std::vector<std::int32_t> found;
    for (std::size_t at = 0; at < table.size();) {
        const void* hit = memmem(table.data() + at, table.size() - at, folded.data(), folded.size());
        if (hit == nullptr) break;
        const auto row = static_cast<std::size_t>(static_cast<const char*>(hit) - table.data()) / kRow;
        found.push_back(static_cast<std::int32_t>(row));
        at = (row + 1) * kRow;
    }
    return found;
}

template<class Search> void runSearch(benchmark::State& state, Search search) {
    const auto airports = state.range(0);
    const std::string_view text = kTexts[state.range(1)];
    if (search(airports, text) != plainSearch(tables(airports), text))
        state.SkipWithError("found something else");
    for (auto _ : state) benchmark::DoNotOptimize(search(airports, text));
    state.SetLabel("\"" + std::string(text) + "\"");
    state.counters["found"] = static_cast<double>(search(airports, text).size());
}

void Search(benchmark::State& state) {
    runSearch(state, [](auto airports, auto text) { return finder(airports).find(text); });
}
void MemmemSearch(benchmark::State& state) {
    runSearch(state, [](auto airports, auto text) { return memmemSearch(foldedTable(airports), text); });
}
void PlainSearch(benchmark::State& state) {
    runSearch(state, [](auto airports, auto text) { return plainSearch(tables(airports), text); });
}

void searches(benchmark::internal::Benchmark* b) {
    b->ArgsProduct({{8000, 32767}, {0, 1, 2, 3, 4, 5}})->Unit(benchmark::kMicrosecond);
}
BENCHMARK(Search)->Apply(searches);
BENCHMARK(MemmemSearch)->Apply(searches);
BENCHMARK(PlainSearch)->Apply(searches);

/// The search and the lines of the picker, in their order.
void SearchAndList(benchmark::State& state) {
    const auto airports = state.range(0);
    const std::string_view text = kTexts[state.range(1)];
    for (auto _ : state) benchmark::DoNotOptimize(airportItems(tables(airports), finder(airports), text));
    state.SetLabel("\"" + std::string(text) + "\"");
}
BENCHMARK(SearchAndList)->Apply(searches);

void PrepareSearch(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(AirportFinder(tables(state.range(0)).airports));
}
BENCHMARK(PrepareSearch)->Arg(8000)->Arg(32767)->Unit(benchmark::kMicrosecond);

std::vector<std::int32_t> plainNearest(const Tables& world, std::int32_t destination) {
    const auto& from = world.airport(destination);
    std::vector<float> distances;
    float course = 0;
    for (const auto& to : world.airports)
        distances.push_back(Distance(from.Latitude, from.Longitude, to.Latitude, to.Longitude, course));
    std::vector<std::int32_t> airports(world.airports.size());
    std::iota(airports.begin(), airports.end(), 0);
    std::size_t k = 0;
    for (std::size_t i = 0; i < distances.size(); ++i) {
        float best = 10000;
        for (std::size_t j = i; j < distances.size(); ++j) {
            if (distances[j] < best) best = distances[j], k = j;
        }
        std::swap(distances[i], distances[k]);
        std::swap(airports[i], airports[k]);
    }
    airports.resize(25);
    return airports;
}

void Nearest(benchmark::State& state) {
    const auto& world = tables(state.range(0));
    if (closestAirports(world, 17) != plainNearest(world, 17)) state.SkipWithError("found something else");
    for (auto _ : state) benchmark::DoNotOptimize(closestAirports(world, 17));
}
BENCHMARK(Nearest)->Arg(8000)->Arg(32767)->Unit(benchmark::kMicrosecond);

void PlainNearest(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(plainNearest(tables(state.range(0)), 17));
}
BENCHMARK(PlainNearest)->Arg(8000)->Arg(32767)->Unit(benchmark::kMicrosecond);

void Alternate(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(nearestAlternate(tables(state.range(0)), 17, 50));
}
BENCHMARK(Alternate)->Arg(8000)->Arg(32767)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace gatewise::bench
