#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace gatewise {

/// One row of the status board.
struct BoardEntry {
    std::string FlightText; // blank, three characters of airline code, four digits
    std::string CityText;   // "city,name" of the other airport
    std::string TimeText;   // "0000"
    std::string StatusText;
    std::int16_t Minutes = 0;     // from now to the flight, may be negative
    std::int32_t FlightIndex = 0; // in BoardFlights
    std::int16_t RowFlag = 0;     // carried along, read by nothing

    static constexpr void fields(auto& r, auto&& f) {
        f("FlightText", r.FlightText), f("CityText", r.CityText), f("TimeText", r.TimeText);
        f("StatusText", r.StatusText), f("Minutes", r.Minutes), f("FlightIndex", r.FlightIndex);
        f("RowFlag", r.RowFlag);
    }
};

/// What a build leaves. BoardRows is as long as the flight list that it was built from; BoardRowCount is the
/// index of the last row to show and can be that of an earlier build.
struct BoardLists {
    std::vector<BoardEntry> BoardList;
    std::vector<BoardEntry> BoardRows;
    int BoardRowCount = -1;
};

} // namespace gatewise
