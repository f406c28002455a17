#include "gt1/SampleSet.h"

#include "gt1/Commands.h"
#include "gt1/Folders.h"
#include "gt1/Unpack.h"

#include <cmath>
#include <gtest/gtest.h>
#include <map>
#include <numbers>

namespace gatewise::gt1 {

const SampleSet& sampleSet() {
    static const SampleSet set = [] {
        const test::TempFolder folder;
        Report report;
        compileFolder(sampleFolder(), folder.native(), std::nullopt, report);
        compileFolder(smallSampleFolder(), folder / "Small", sampleFolder(), report);
        SampleSet out{unpackDataSet(folder.native(), report), unpackDataSet(folder / "Small", report),
                      unpackWorld(folder.native(), report)};
        EXPECT_EQ(report.errors(), std::vector<std::string>{});
        EXPECT_EQ(report.warnings(), std::vector<std::string>{});
        return out;
    }();
    return set;
}

int minutesFromUtc(std::string_view iata) {
    static const std::map<double, std::string_view> airports{
        {-10, "HNL OGG PPT"},
        {-9, "ANC"},
        {-8, "LAX SFO YVR"},
        {-7, "DEN"},
        {-6, "ORD DFW MEX"},
        {-5, "JFK BOS ATL MIA YYZ PTY BOG LIM"},
        {-4, "SCL PUQ TNM"},
        {-3, "EZE GRU GIG"},
        {0, "LHR LIS KEF CMN"},
        {1, "CDG AMS BRU FRA MUC MAD FCO CPH ARN LOS"},
        {2, "ATH CAI JNB CPT"},
        {3, "SVO ADD NBO EBB"},
        {4, "DXB"},
        {5.5, "DEL BOM"},
        {7, "BKK CGK"},
        {8, "SIN HKG MNL PEK PER"},
        {9, "HND NRT ICN"},
        {10, "SYD MEL"},
        {12, "AKL NAN"},
    };
    for (const auto& [hours, codes] : airports)
        if (codes.find(iata) != std::string_view::npos) return static_cast<int>(hours * 60);
    ADD_FAILURE() << "no time zone for " << iata;
    return 0;
}

double miles(double fromLatitude, double fromLongitude, double toLatitude, double toLongitude) {
    constexpr double degree = std::numbers::pi / 180;
    const double a = fromLatitude * degree;
    const double b = toLatitude * degree;
    const double across = std::sin((toLongitude - fromLongitude) * degree / 2);
    const double up = std::sin((b - a) / 2);
    return 2 * 60 / degree * std::asin(std::sqrt(up * up + std::cos(a) * std::cos(b) * across * across));
}

Position positionOf(const RouteEntry& entry, const World& world) {
    const auto at = [](const auto& records, int index) {
        const auto& record = records.at(static_cast<std::size_t>(index));
        return Position{static_cast<double>(record.latitude), static_cast<double>(record.longitude)};
    };
    switch (entry.entryKind.view()[0]) {
    case 'V':
        return at(world.vor, entry.entryRecord);
    case 'N':
        return at(world.ndb, entry.entryRecord);
    case 'I':
        return at(world.fixes, entry.entryRecord);
    default:
        return at(world.jets, entry.entryRecord - 1);
    }
}

double routeMiles(const DataSet& set, const World& world, const FlightRecord& flight) {
    const auto airport = [&](int index) {
        const auto& record = set.airports.at(static_cast<std::size_t>(index));
        return Position{static_cast<double>(record.Latitude), static_cast<double>(record.Longitude)};
    };
    double sum = 0;
    Position last = airport(flight.OriginIndex);
    const auto leg = [&](Position next) {
        sum += miles(last.latitude, last.longitude, next.latitude, next.longitude);
        last = next;
    };
    for (const RouteEntry& entry : set.plans.at(static_cast<std::size_t>(flight.PlanNumber) - 1))
        leg(positionOf(entry, world));
    leg(airport(flight.DestIndex));
    return sum;
}

int blockMinutes(const FlightRecord& flight) {
    const auto minutes = [](int time) { return time / 100 * 60 + time % 100; };
    const int out = minutes(flight.DepartureTime) - minutesFromUtc(flight.OriginIata.view());
    const int in = minutes(flight.ArrivalTime) - minutesFromUtc(flight.DestinationIata.view());
    return ((in - out) % 1440 + 1440) % 1440;
}

} // namespace gatewise::gt1
