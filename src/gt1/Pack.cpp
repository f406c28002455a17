#include "gt1/Pack.h"

namespace gatewise::gt1 {

namespace {

template<class Record> Bytes packed(const std::vector<Record>& records) {
    Bytes out;
    out.reserve(records.size() * recordSize<Record>());
    for (const Record& record : records) appendRecord(out, record);
    return out;
}

/// Departures are one run of routes.gt1; arrivals are positions in it, an airport's own list one run too.
Bytes packArrivals(DataSet& set, Report& report) {
    std::vector<std::vector<std::int32_t>> lists(set.airports.size());
    std::vector<std::size_t> departures(set.airports.size());
    std::uint64_t before = 0;
    for (const FlightRecord& flight : set.flights) {
        const auto origin = static_cast<std::size_t>(flight.OriginIndex);
        const std::int32_t position = filePosition("routes.gt1", "the flights", before, report);
        if (report.failed()) return {};
        if (departures[origin]++ == 0) set.airports[origin].DepartureOffset = position;
        lists[static_cast<std::size_t>(flight.DestIndex)].push_back(position);
        before += recordSize<FlightRecord>();
    }
    Bytes out;
    for (std::size_t i = 0; i < set.airports.size(); ++i) {
        AirportRecord& airport = set.airports[i];
        const std::string name(airport.Iata.trimmed());
        airport.DepartureCount = flightCount("routes.gt1", name, departures[i], report);
        airport.ArrivalCount = flightCount("arrivals.gt1", name, lists[i].size(), report);
        if (lists[i].empty()) continue;
        airport.ArrivalOffset = filePosition("arrivals.gt1", "the list of " + name, out.size(), report);
        for (const std::int32_t position : lists[i]) appendField(out, position);
    }
    return out;
}

Bytes packFacilities(DataSet& set, Report& report) {
    Bytes out;
    for (std::size_t i = 0; i < set.airports.size(); ++i) {
        AirportRecord& airport = set.airports[i];
        const Facilities& block = set.facilities[i];
        airport.RunwayCount = static_cast<std::int32_t>(block.runways.size());
        airport.RunwayOffset = filePosition("APT.gt1", "the block of " + std::string(airport.Iata.trimmed()),
                                            out.size(), report);
        for (const RunwayRecord& runway : block.runways) appendRecord(out, runway);
        appendRecord(out, block.radios);
    }
    return out;
}

Bytes packPlans(const DataSet& set, Report& report) {
    Bytes index;
    Bytes blocks;
    const std::uint64_t indexBytes = set.plans.size() * sizeof(std::int32_t);
    for (std::size_t i = 0; i < set.plans.size(); ++i) {
        appendField(index, filePosition("Plans.gt1", "plan " + std::to_string(i + 1),
                                        indexBytes + blocks.size(), report));
        appendField(blocks, static_cast<std::int16_t>(set.plans[i].size()));
        for (const RouteEntry& entry : set.plans[i]) appendRecord(blocks, entry);
    }
    index.insert(index.end(), blocks.begin(), blocks.end());
    return index;
}

} // namespace

std::int32_t filePosition(std::string_view file, std::string_view what, std::uint64_t bytesBefore,
                          Report& report) {
    constexpr std::uint64_t last = 2147483647;
    if (bytesBefore < last) return static_cast<std::int32_t>(bytesBefore + 1);
    report.error({std::string(file), 0, 0, ""},
                 std::string(what) + " to begin at byte " + std::to_string(last) + " at the latest",
                 "byte " + std::to_string(bytesBefore + 1));
    return 0;
}

std::int16_t flightCount(std::string_view file, std::string_view what, std::size_t count, Report& report) {
    constexpr std::size_t most = 32767;
    if (count <= most) return static_cast<std::int16_t>(count);
    report.error({std::string(file), 0, 0, ""},
                 "at most " + std::to_string(most) + " flights at " + std::string(what),
                 std::to_string(count));
    return 0;
}

std::vector<PackedFile> packDataSet(DataSet set, Report& report) {
    std::vector<PackedFile> out;
    Bytes arrivals = packArrivals(set, report);
    Bytes facilities = packFacilities(set, report);
    Bytes plans = packPlans(set, report);
    out.push_back({"index.gt1", packed(set.airports)});
    out.push_back({"airline.gt1", packed(set.airlines)});
    out.push_back({"routes.gt1", packed(set.flights)});
    out.push_back({"arrivals.gt1", std::move(arrivals)});
    out.push_back({"Plans.gt1", std::move(plans)});
    out.push_back({"APT.gt1", std::move(facilities)});
    return out;
}

std::vector<PackedFile> packWorld(const World& world) {
    std::vector<PackedFile> out;
    out.push_back({"aircraft.gt1", packed(world.aircraft)});
    out.push_back({"VOR.gt1", packed(world.vor)});
    out.push_back({"NDB.gt1", packed(world.ndb)});
    out.push_back({"ISC.gt1", packed(world.fixes)});
    out.push_back({"JRT.gt1", packed(world.jets)});
    const std::string regions = regionsText(world.regions);
    if (!regions.empty()) out.push_back({kRegionsFile, Bytes(regions.begin(), regions.end())});
    return out;
}

} // namespace gatewise::gt1
