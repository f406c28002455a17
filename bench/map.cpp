#include "map/LandData.h"
#include "map/MapDrawing.h"
#include "map/RoutesMap.h"
#include "platform/Files.h"

#include <benchmark/benchmark.h>

// The land's file, and the drawing of a map before anything is painted.

namespace {

using namespace gatewise;
using namespace gatewise::map;

constexpr int kDestinations = 300;

MapScene routesOfAHub(std::shared_ptr<const Land> land) {
    Tables tables;
    std::vector<Destination> list;
    tables.airports.resize(kDestinations + 2);
    for (int i = 0; i <= kDestinations; ++i) {
        auto& airport = tables.airports[static_cast<std::size_t>(i)];
        airport.Icao = "K" + std::to_string(100 + i);
        airport.Latitude = static_cast<float>(51 - (i * 37) % 90);
        airport.Longitude = static_cast<float>((i * 53) % 360 - 180);
        if (i > 0) list.push_back({i, "QQQ", "City " + std::to_string(i), 10 * i, i % 25, 900});
    }
    return routesScene(tables, 0, list, std::move(land));
}

const Bytes& file() {
    static const Bytes bytes = *files::readAll(GATEWISE_LAND);
    return bytes;
}

void ReadLand(benchmark::State& state) {
    for (auto _ : state) benchmark::DoNotOptimize(Land(file()).levels());
}
BENCHMARK(ReadLand)->Unit(benchmark::kMillisecond);

/// From the bytes to a level of detail, 0 the finest.
void MakeLevel(benchmark::State& state) {
    for (auto _ : state) {
        const Land land(file());
        benchmark::DoNotOptimize(land.at(static_cast<std::size_t>(state.range(0))).land.size());
    }
}
BENCHMARK(MakeLevel)->DenseRange(0, 4)->Unit(benchmark::kMillisecond);

/// 300 destinations with their land.
void DrawRoutes(benchmark::State& state) {
    const MapScene scene = routesOfAHub(std::make_shared<const Land>(file()));
    const Sheet sheet{{1200, 800}, 9, {}};
    const MapSight sight = fitted(scene, sheet.size);
    for (auto _ : state) benchmark::DoNotOptimize(drawMap(scene, sight, sheet).lines.size());
}
BENCHMARK(DrawRoutes)->Unit(benchmark::kMillisecond);

} // namespace
