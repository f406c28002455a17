#include "OutsideFile.h"
#include "schedule/Readers.h"

// An offset (4 bytes), a count (2) and the length of routes.gt1 (2), then any bytes as routes.gt1 and the
// rest as arrivals.gt1: what is found is what a reader that goes step by step finds.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace gatewise;
    static const fuzz::OutsideFile routesFile("arrivals-routes.gt1");
    static const fuzz::OutsideFile arrivalsFile("arrivals.gt1");
    const ByteView input(data, size);
    const auto offset = numberAt<std::int32_t>(input, 0);
    const auto count = numberAt<std::int16_t>(input, 4);
    const auto length = numberAt<std::uint16_t>(input, 6);
    if (!offset || !count || !length || *length > size - 8) return 0;
    const ByteView routes = input.subspan(8, *length);
    const ByteView arrivals = input.subspan(std::size_t{8} + *length);
    routesFile.fill(routes);
    arrivalsFile.fill(arrivals);

    Bytes expected;
    bool whole = *count >= 1 && *offset >= 1;
    for (int i = 0; whole && i < *count; ++i) {
        const auto position = numberAt<std::int32_t>(arrivals, static_cast<std::size_t>(*offset - 1LL) +
                                                                   4U * static_cast<unsigned>(i));
        const auto flight = position && *position >= 1
                                ? recordAt<FlightRecord>(routes, static_cast<std::size_t>(*position) - 1)
                                : std::nullopt;
        whole = flight.has_value();
        if (whole) appendRecord(expected, *flight);
    }

    std::vector<FlightRecord> flights(1);
    const bool read = loadArrivals(arrivalsFile.path(), routesFile.path(), *offset, *count, flights);
    fuzz::expect(read == whole);
    fuzz::expect(flights.size() == (whole ? static_cast<std::size_t>(*count) : 1));
    if (!whole) return 0;
    Bytes found;
    for (const auto& flight : flights) appendRecord(found, flight);
    fuzz::expect(found == expected);
    return 0;
}
