#include "OutsideFile.h"
#include "schedule/FlightTexts.h"
#include "schedule/Lookups.h"
#include "schedule/Readers.h"
#include "selection/AirportFinder.h"

// Any bytes as index.gt1: the table has the blank element behind its records, every look-up ends, and every
// index, however wild, names an element.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    using namespace gatewise;
    static const fuzz::OutsideFile file("index.gt1");
    file.fill({data, size});
    Tables tables;
    fuzz::expect(loadAirports(file.path(), tables));
    const std::size_t records = size / recordSize<AirportRecord>();
    fuzz::expect(tables.airports.size() == records + 1 || tables.airports.size() == records + 2);
    fuzz::expect(tables.airports.back().DepartureCount == 0 || size % recordSize<AirportRecord>() != 0);
    for (const int index : {-2147483647 - 1, -1, 0, tables.AirportCount(), tables.AirportCount() + 1, 32767})
        (void)homeText(tables.airport(index));
    for (const auto& airport : tables.airports) {
        const std::string city = find_origin_name(tables, airport.Iata.view());
        fuzz::expect(city.size() <= 33);
        (void)airportHitText(airport);
    }
    const AirportFinder finder(tables.airports);
    (void)finder;
    return 0;
}
