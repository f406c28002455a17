// A plan of 100 points in each of the forms that other programs take. The limit is a millisecond each.

#include "programs/Formats.h"

#include <benchmark/benchmark.h>

namespace gatewise {
namespace {

constexpr int kPoints = 100;

programs::Route longRoute() {
    Plan plan;
    plan.departureAirport.Icao = "KATL";
    plan.destinationAirport.Icao = "PHNL";
    plan.departureAirport.Latitude = 9;
    plan.departureAirport.Longitude = -121;
    plan.destinationAirport.Latitude = 42;
    plan.destinationAirport.Longitude = -49;
    for (int i = 1; i <= kPoints - 2; ++i) {
        PlanPoint& point = plan.at(i);
        point.pointType = "HI";
        point.pointName = "F" + std::to_string(1000 + i);
        point.pointId = point.pointName.trimmed();
        point.pointDescription = "Intersection";
        point.pointAirway = "J80";
        point.pointLatitude = 10 + 0.31F * static_cast<float>(i);
        point.pointLongitude = -120 + 0.7F * static_cast<float>(i);
        point.pointAltitude = 33000;
        point.pointMinutes = 3 * i;
    }
    plan.planLast = kPoints - 1;
    return programs::routeOf(plan, "KATLPHNL", DateTime(), false);
}

void write(benchmark::State& state) {
    const programs::Format& format = programs::formats()[static_cast<std::size_t>(state.range(0))];
    const programs::Route route = longRoute();
    state.SetLabel(format.name);
    for (auto _ : state) benchmark::DoNotOptimize(format.write(route));
}
BENCHMARK(write)->DenseRange(0, programs::kFormatCount - 1)->Unit(benchmark::kMicrosecond);

} // namespace
} // namespace gatewise
