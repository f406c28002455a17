#include "import/OpenFlights.h"

#include <algorithm>
#include <cmath>

namespace gatewise::importer {

namespace {

/// A code, or nothing where the cell holds something else ("-", "N/A").
std::string codeIn(std::string_view cell, std::size_t least, std::size_t most) {
    return isCode(cell, least, most) ? std::string(cell) : std::string();
}

const char* airport(const Cells& c, std::vector<AirportIn>& rows) {
    if (c.size() < 11) return "fewer than 11 columns";
    const auto latitude = latitudeIn(c[6]);
    const auto longitude = longitudeIn(c[7]);
    const auto elevation = realIn(c[8]);
    if (!latitude || !longitude) return "no position";
    if (elevation && std::abs(*elevation) > 30000) return "an elevation that no airport has";
    AirportIn out;
    out.name = text(c[1]);
    out.city = text(c[2]);
    out.iata = codeIn(c[4], 3, 3);
    out.icao = codeIn(c[5], 3, 4);
    out.latitude = *latitude;
    out.longitude = *longitude;
    out.elevation = static_cast<int>(std::lround(elevation.value_or(0)));
    out.zone = text(c[11]);
    rows.push_back(std::move(out));
    return nullptr;
}

} // namespace

Table<AirportIn> readWorldAirports(const Reading& reading) {
    Table<AirportIn> table;
    readPlainRows(reading, table, [&](const Cells& c) { return airport(c, table.rows); });
    return table;
}

Table<AirlineIn> readWorldAirlines(const Reading& reading) {
    Table<AirlineIn> table;
    readPlainRows(reading, table, [&](const Cells& c) -> const char* {
        const auto id = wholeIn(c[0]);
        if (c.size() < 8 || !id || c[1].empty()) return "no airline with number and name";
        table.rows.push_back(
            {*id, codeIn(c[3], 2, 2), codeIn(c[4], 3, 3), text(c[1]), text(c[5]), c[7] == "Y"});
        return nullptr;
    });
    return table;
}

Table<PlaneIn> readWorldPlanes(const Reading& reading) {
    Table<PlaneIn> table;
    readPlainRows(reading, table, [&](const Cells& c) -> const char* {
        if (c.size() < 3 || c[0].empty()) return "no aircraft with a name and two codes";
        table.rows.push_back({codeIn(c[1], 3, 3), codeIn(c[2], 2, 4), text(c[0])});
        return nullptr;
    });
    return table;
}

Table<RouteIn> readWorldRoutes(const Reading& reading) {
    Table<RouteIn> table;
    readPlainRows(reading, table, [&](const Cells& c) -> const char* {
        const auto stops = wholeIn(c[7]);
        if (c.size() < 9 || !stops || *stops < 0 || *stops > 20)
            return "fewer than 9 columns, or no number of stops";
        if (!isCode(c[0], 2, 3)) return "an airline code that is none";
        if (!isCode(c[2], 3, 4) || !isCode(c[4], 3, 4)) return "an airport code that is none";
        table.rows.push_back({text(c[0]), wholeIn(c[1]).value_or(-1), text(c[2]), text(c[4]), c[6] == "Y",
                              static_cast<int>(*stops), text(c[8])});
        return nullptr;
    });
    return table;
}

} // namespace gatewise::importer
