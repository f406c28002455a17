#include "gt1/Unpack.h"

#include "platform/Files.h"

#include <algorithm>

namespace gatewise::gt1 {

namespace {

Place whole(std::string_view file) {
    return {std::string(file), 0, 0, ""};
}

Bytes read(const std::filesystem::path& folder, std::string_view file, Report& report) {
    std::error_code error;
    auto bytes = files::readAll(files::textOf(folder / file), &error);
    if (bytes) return std::move(*bytes);
    report.error(whole(file), "this file in " + folder.string(), error.message());
    return {};
}

template<class Record>
std::vector<Record> records(const std::filesystem::path& folder, std::string_view file, Report& report) {
    const Bytes bytes = read(folder, file, report);
    constexpr std::size_t size = recordSize<Record>();
    if (bytes.size() % size != 0)
        report.error(whole(file), "a whole number of records of " + std::to_string(size) + " bytes",
                     std::to_string(bytes.size()) + " bytes");
    std::vector<Record> out(bytes.size() / size);
    for (std::size_t i = 0; i < out.size(); ++i) loadRecord(out[i], bytes.data() + i * size);
    return out;
}

/// From a stored position, which counts from 1, to an offset; past the end of every file when it is below 1.
std::size_t offsetOf(std::int32_t position) {
    return position > 0 ? static_cast<std::size_t>(position) - 1 : std::string::npos;
}

std::optional<Facilities> facilitiesAt(ByteView bytes, const AirportRecord& airport) {
    Facilities out;
    std::size_t at = offsetOf(airport.RunwayOffset);
    for (int i = 0; i < airport.RunwayCount; ++i) {
        const auto runway = recordAt<RunwayRecord>(bytes, at);
        if (!runway) return std::nullopt;
        out.runways.push_back(*runway);
        at += recordSize<RunwayRecord>();
    }
    const auto radios = recordAt<RadioRecord>(bytes, at);
    if (!radios) return std::nullopt;
    out.radios = *radios;
    return out;
}

std::optional<std::vector<RouteEntry>> planAt(ByteView bytes, std::int32_t position) {
    const std::size_t at = offsetOf(position);
    const auto count = numberAt<std::int16_t>(bytes, at);
    if (!count || *count < 0) return std::nullopt;
    std::vector<RouteEntry> out;
    for (int i = 0; i < *count; ++i) {
        const auto entry = recordAt<RouteEntry>(
            bytes, at + sizeof(std::int16_t) + static_cast<std::size_t>(i) * recordSize<RouteEntry>());
        if (!entry) return std::nullopt;
        out.push_back(*entry);
    }
    return out;
}

/// The file does not say how many plans it has: its index ends where the first block begins.
std::vector<std::vector<RouteEntry>> plansOf(ByteView bytes, Report& report) {
    std::vector<std::vector<RouteEntry>> out;
    std::size_t indexEnd = bytes.size();
    for (std::size_t at = 0; at < indexEnd; at += sizeof(std::int32_t)) {
        const auto position = numberAt<std::int32_t>(bytes, at);
        auto plan = position ? planAt(bytes, *position) : std::nullopt;
        if (!plan) {
            report.error(whole("Plans.gt1"), "plan " + std::to_string(out.size() + 1) + " inside the file",
                         position ? "position " + std::to_string(*position) : "a part of a position");
            return out;
        }
        indexEnd = std::min(indexEnd, offsetOf(*position));
        out.push_back(std::move(*plan));
    }
    return out;
}

void checkAirportNumbers(const DataSet& set, Report& report) {
    const auto count = static_cast<int>(set.airports.size());
    for (std::size_t i = 0; i < set.flights.size(); ++i) {
        const FlightRecord& flight = set.flights[i];
        for (const int index : {int{flight.OriginIndex}, int{flight.DestIndex}})
            if (index < 0 || index >= count)
                report.error(whole("routes.gt1"), "airports of the index in record " + std::to_string(i + 1),
                             "airport " + std::to_string(index));
    }
}

/// A world without this file knows no region.
Regions regionsOf(const std::filesystem::path& folder, Report& report) {
    const std::string file = files::textOf(folder / kRegionsFile);
    const Bytes bytes = files::fileExists(file) ? read(folder, kRegionsFile, report) : Bytes();
    return regionsIn(asText(bytes), [&](int line) {
        report.error({kRegionsFile, line, 0, ""}, "kind, ident, latitude, longitude and region",
                     "another line");
    });
}

} // namespace

DataSet unpackDataSet(const std::filesystem::path& folder, Report& report) {
    DataSet set;
    set.airports = records<AirportRecord>(folder, "index.gt1", report);
    set.airlines = records<AirlineRecord>(folder, "airline.gt1", report);
    set.flights = records<FlightRecord>(folder, "routes.gt1", report);
    set.plans = plansOf(read(folder, "Plans.gt1", report), report);
    const Bytes facilities = read(folder, "APT.gt1", report);
    for (const AirportRecord& airport : set.airports) {
        auto block = facilitiesAt(facilities, airport);
        if (!block)
            report.error(whole("APT.gt1"),
                         "the block of " + std::string(airport.Iata.trimmed()) + " inside the file",
                         "position " + std::to_string(airport.RunwayOffset) + ", " +
                             std::to_string(airport.RunwayCount) + " runways");
        set.facilities.push_back(block ? std::move(*block) : Facilities());
    }
    checkAirportNumbers(set, report);
    return set;
}

World unpackWorld(const std::filesystem::path& folder, Report& report) {
    World world;
    world.aircraft = records<AircraftRecord>(folder, "aircraft.gt1", report);
    world.vor = records<NavaidRecord>(folder, "VOR.gt1", report);
    world.ndb = records<NavaidRecord>(folder, "NDB.gt1", report);
    world.fixes = records<FixRecord>(folder, "ISC.gt1", report);
    world.jets = records<JetRecord>(folder, "JRT.gt1", report);
    world.regions = regionsOf(folder, report);
    return world;
}

} // namespace gatewise::gt1
