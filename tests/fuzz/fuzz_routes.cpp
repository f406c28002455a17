#include "OutsideFile.h"
#include "board/Board.h"
#include "board/Paging.h"
#include "schedule/FlightTexts.h"
#include "schedule/Lookups.h"
#include "schedule/Readers.h"

#include <cstring>

namespace {

using namespace gatewise;

/// Flights of any content make a board that can be shown.
void showBoard(const std::vector<FlightRecord>& flights, const Tables& tables, BoardSort sort, int day) {
    BoardLists lists;
    const BoardRequest request{"- A", day, "08", "30", sort};
    for (const bool arriving : {false, true}) {
        if (arriving)
            BuildArrivals(flights, tables, request, lists);
        else
            BuildDepartures(flights, tables, request, lists);
        fuzz::expect(lists.BoardRows.size() == flights.size());
        for (int page = 0; page < boardPages(lists.BoardRowCount); ++page)
            (void)boardPage(lists, page, arriving);
    }
}

} // namespace

// An offset (4 bytes), a count (2) and a choice of sort and day (1), then any bytes as routes.gt1.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const fuzz::OutsideFile file("routes.gt1");
    const ByteView input(data, size);
    const auto offset = numberAt<std::int32_t>(input, 0);
    const auto count = numberAt<std::int16_t>(input, 4);
    const auto choice = numberAt<std::uint8_t>(input, 6);
    if (!offset || !count || !choice) return 0;
    const ByteView bytes = input.subspan(7);
    file.fill(bytes);

    std::vector<FlightRecord> flights;
    const long long end = *offset - 1LL + *count * 32LL;
    const bool inside = *count >= 1 && *offset >= 1 && end <= static_cast<long long>(bytes.size());
    fuzz::expect(loadFlights(file.path(), *offset, *count, flights) == inside);
    fuzz::expect(flights.size() == (inside ? static_cast<std::size_t>(*count) : 0));

    Tables tables;
    for (const char* icao : {"KAAA", "KBBB", "KCCC"}) {
        tables.airports.back().Icao = icao;
        tables.airports.emplace_back();
    }
    for (const auto& flight : flights) {
        (void)flightStem(tables, flight);
        (void)passTime(flight.DepartureTime);
        (void)classText(flight.ClassCode.view());
        (void)get_meal(flight.MealMask);
    }
    showBoard(flights, tables, static_cast<BoardSort>(*choice % 4), *choice / 4 % 2 == 0 ? 0 : 1);
    return 0;
}
