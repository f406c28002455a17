#include "schedule/Readers.h"

#include "platform/Files.h"
#include "platform/Numbers.h"

#include <algorithm>
#include <optional>

namespace gatewise {

namespace {

constexpr std::size_t kMostDataSets = 999;
constexpr auto kFlightSize = static_cast<long long>(recordSize<FlightRecord>());

/// A stretch of routes.gt1 this much longer than its records is still cheaper to read in one piece than
/// record by record.
constexpr long long kWorthOneRead = 4096;
constexpr long long kLongestStretch = 8LL << 20U;

/// All records of a file and `extra` blank ones behind them.
template<class Record>
std::optional<std::vector<Record>> readTable(std::string_view path, std::size_t extra) {
    const auto bytes = files::readAll(path);
    if (!bytes) return std::nullopt;
    constexpr std::size_t size = recordSize<Record>();
    const std::size_t whole = bytes->size() / size;
    const std::size_t rest = bytes->size() % size;
    // The upper index is a quotient stored in a whole number: rounded, ties to even.
    const double upper = static_cast<double>(bytes->size()) / static_cast<double>(size) - 1;
    const auto count = static_cast<std::size_t>(roundToEven(upper + static_cast<double>(extra)) + 1);

    std::vector<Record> records(count);
    const std::size_t filled = std::min(whole, count);
    for (std::size_t i = 0; i < filled; ++i) loadRecord(records[i], bytes->data() + i * size);
    if (rest > 0 && whole < count) {
        Bytes partly;
        appendRecord(partly, Record());
        std::copy_n(bytes->end() - static_cast<std::ptrdiff_t>(rest), rest, partly.begin());
        loadRecord(records[whole], partly.data());
    }
    return records;
}

void indexAirports(Tables& tables) {
    tables.airportsByIata.start(tables.airports.size());
    for (const auto& airport : tables.airports) tables.airportsByIata.addFirstCounts(airport.Iata.view());
}

void indexAirlines(Tables& tables) {
    tables.airlinesByCode.start(tables.airlines.size());
    for (const auto& airline : tables.airlines)
        tables.airlinesByCode.addLastCounts(FixedText<3>(airline.Code.trimmed()).view());
}

void indexAircraft(Tables& tables) {
    tables.aircraftByCode.start(tables.aircraft.size());
    for (const auto& aircraft : tables.aircraft) tables.aircraftByCode.addLastCounts(aircraft.Code.view());
}

bool readScattered(const files::RecordFile& routes, const std::vector<std::int32_t>& positions,
                   std::vector<FlightRecord>& flights) {
    for (const auto position : positions) {
        const auto flight = routes.record<FlightRecord>(position - 1LL);
        if (!flight) return false;
        flights.push_back(*flight);
    }
    return true;
}

bool readStretch(const files::RecordFile& routes, const std::vector<std::int32_t>& positions, long long first,
                 long long length, std::vector<FlightRecord>& flights) {
    Bytes stretch(static_cast<std::size_t>(length));
    if (!routes.read(first - 1, stretch)) return false;
    flights.resize(positions.size());
    for (std::size_t i = 0; i < positions.size(); ++i)
        loadRecord(flights[i], stretch.data() + (positions[i] - first));
    return true;
}

} // namespace

std::vector<std::string> dataSetFolders(std::string_view AppDir) {
    std::vector<std::string> folders;
    for (auto& entry : files::list(std::string(AppDir) + "\\Data\\")) {
        if (entry.folder && folders.size() < kMostDataSets) folders.push_back(std::move(entry.name));
    }
    return folders;
}

bool loadAirports(std::string_view path, Tables& tables) {
    auto airports = readTable<AirportRecord>(path, 1);
    if (!airports) return false;
    tables.airports = std::move(*airports);
    indexAirports(tables);
    return true;
}

bool loadAirlines(std::string_view path, Tables& tables) {
    auto airlines = readTable<AirlineRecord>(path, 0);
    if (!airlines) return false;
    tables.airlines = std::move(*airlines);
    indexAirlines(tables);
    return true;
}

bool loadAircraft(std::string_view path, Tables& tables) {
    auto aircraft = readTable<AircraftRecord>(path, 0);
    if (!aircraft) return false;
    tables.aircraft = std::move(*aircraft);
    indexAircraft(tables);
    return true;
}

void indexTables(Tables& tables) {
    indexAirports(tables);
    indexAirlines(tables);
    indexAircraft(tables);
}

bool loadFlights(std::string_view routesPath, int offset, int count, std::vector<FlightRecord>& flights) {
    if (count < 1) return false;
    const files::RecordFile routes(routesPath);
    auto block = routes.records<FlightRecord>(offset - 1LL, count);
    if (!block) return false;
    flights = std::move(*block);
    return true;
}

bool loadArrivals(std::string_view arrivalsPath, std::string_view routesPath, int offset, int count,
                  std::vector<FlightRecord>& flights) {
    if (count < 1) return false;
    const files::RecordFile arrivals(arrivalsPath);
    const files::RecordFile routes(routesPath);
    constexpr auto width = static_cast<long long>(sizeof(std::int32_t));
    if (offset < 1 || !routes.isOpen() || count > (arrivals.length() - (offset - 1LL)) / width) return false;
    Bytes list(static_cast<std::size_t>(count * width));
    if (!arrivals.read(offset - 1LL, list)) return false;

    std::vector<std::int32_t> positions;
    positions.reserve(static_cast<std::size_t>(count));
    for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i)
        positions.push_back(*numberAt<std::int32_t>(list, i * static_cast<std::size_t>(width)));
    const auto [first, last] = std::minmax_element(positions.begin(), positions.end());
    if (*first < 1 || *last - 1LL + kFlightSize > routes.length()) return false;

    std::vector<FlightRecord> found;
    found.reserve(positions.size());
    const long long length = static_cast<long long>(*last) - *first + kFlightSize;
    const bool read = length <= std::min(count * kWorthOneRead, kLongestStretch)
                          ? readStretch(routes, positions, *first, length, found)
                          : readScattered(routes, positions, found);
    if (!read) return false;
    flights = std::move(found);
    return true;
}

} // namespace gatewise
