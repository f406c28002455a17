#include "import/OurAirports.h"

#include "import/Header.h"

#include <algorithm>
#include <cmath>

namespace gatewise::importer {

namespace {

struct AirportColumns {
    AirportColumns() = default;
    explicit AirportColumns(const Header& h)
        : ident(h.column({"ident"})), type(h.column({"type"})), name(h.column({"name"})),
          latitude(h.column({"latitudedeg"})), longitude(h.column({"longitudedeg"})),
          elevation(h.column({"elevationft"})), city(h.column({"municipality"})),
          icao(h.column({"icaocode"})), gps(h.column({"gpscode"})), iata(h.column({"iatacode"})) {}
    int ident = -1, type = -1, name = -1, latitude = -1, longitude = -1, elevation = -1, city = -1, icao = -1,
        gps = -1, iata = -1;
};

/// The code that pilots use: the newer tables have a column for it, the older ones the GPS code.
std::string icaoOf(const Cells& c, const AirportColumns& at) {
    for (const int column : {at.icao, at.gps, at.ident})
        if (isCode(cellAt(c, column), 3, 4)) return std::string(cellAt(c, column));
    return {};
}

const char* airport(const Cells& c, const AirportColumns& at, std::vector<AirportIn>& rows) {
    const auto latitude = latitudeIn(cellAt(c, at.latitude));
    const auto longitude = longitudeIn(cellAt(c, at.longitude));
    const auto elevation = realIn(cellAt(c, at.elevation));
    if (!latitude || !longitude) return "no position";
    if (elevation && std::abs(*elevation) > 30000) return "an elevation that no airport has";
    const std::string_view iata = cellAt(c, at.iata);
    const std::string_view type = cellAt(c, at.type);
    AirportIn out;
    out.iata = isCode(iata, 3, 3) ? std::string(iata) : std::string();
    out.icao = icaoOf(c, at);
    out.name = std::string(cellAt(c, at.name));
    out.city = std::string(cellAt(c, at.city));
    out.latitude = *latitude;
    out.longitude = *longitude;
    out.elevation = static_cast<int>(std::lround(elevation.value_or(0)));
    out.closed = type == "closed";
    out.land = type.find("port") == std::string_view::npos || type.find("airport") != std::string_view::npos;
    rows.push_back(std::move(out));
    return nullptr;
}

struct EndColumns {
    EndColumns() = default;
    EndColumns(const Header& h, const std::string& end)
        : ident(h.column({end + "ident"})), latitude(h.column({end + "latitudedeg"})),
          longitude(h.column({end + "longitudedeg"})), heading(h.column({end + "headingdegt"})) {}
    int ident = -1, latitude = -1, longitude = -1, heading = -1;
};

struct RunwayColumns {
    RunwayColumns() = default;
    explicit RunwayColumns(const Header& h)
        : airport(h.column({"airportident"})), length(h.column({"lengthft"})), closed(h.column({"closed"})),
          low(h, "le"), high(h, "he") {}
    int airport = -1, length = -1, closed = -1;
    EndColumns low, high;
};

RunwayEndIn runwayEnd(const Cells& c, const EndColumns& at) {
    const auto latitude = latitudeIn(cellAt(c, at.latitude));
    const auto longitude = longitudeIn(cellAt(c, at.longitude));
    const auto heading = realIn(cellAt(c, at.heading));
    RunwayEndIn out;
    out.ident = std::string(cellAt(c, at.ident));
    out.placed = latitude && longitude;
    if (out.placed) {
        out.latitude = *latitude;
        out.longitude = *longitude;
    }
    if (heading && *heading >= 0 && *heading <= 360) out.heading = *heading;
    return out;
}

struct RadioColumns {
    RadioColumns() = default;
    explicit RadioColumns(const Header& h)
        : airport(h.column({"airportident"})), type(h.column({"type"})),
          megahertz(h.column({"frequencymhz"})) {}
    int airport = -1, type = -1, megahertz = -1;
};

struct AidColumns {
    AidColumns() = default;
    explicit AidColumns(const Header& h)
        : ident(h.column({"ident"})), name(h.column({"name"})), type(h.column({"type"})),
          kilohertz(h.column({"frequencykhz"})), latitude(h.column({"latitudedeg"})),
          longitude(h.column({"longitudedeg"})), slaved(h.column({"slavedvariationdeg"})),
          magnetic(h.column({"magneticvariationdeg"})) {}
    int ident = -1, name = -1, type = -1, kilohertz = -1, latitude = -1, longitude = -1, slaved = -1,
        magnetic = -1;
};

const char* radioAid(const Cells& c, const AidColumns& at, std::vector<NavAidIn>& rows) {
    const std::string_view type = cellAt(c, at.type);
    const bool ndb = type.starts_with("NDB");
    if (!ndb && !type.starts_with("VOR")) return nullptr; // a DME or TACAN alone is no point of a plan
    const auto latitude = latitudeIn(cellAt(c, at.latitude));
    const auto longitude = longitudeIn(cellAt(c, at.longitude));
    const auto frequency = wholeIn(cellAt(c, at.kilohertz));
    if (!latitude || !longitude) return "no position";
    if (!frequency || *frequency < 1 || *frequency > 999999) return "no frequency";
    NavAidIn out;
    out.row = ndb ? 2 : 3;
    out.latitude = *latitude;
    out.longitude = *longitude;
    out.frequency = static_cast<int>(ndb ? *frequency : *frequency / 10);
    out.ident = std::string(cellAt(c, at.ident));
    out.name = std::string(cellAt(c, at.name));
    const auto variation = realIn(cellAt(c, at.slaved));
    const auto there = variation ? variation : realIn(cellAt(c, at.magnetic));
    out.bearingKnown = there && std::abs(*there) <= 180;
    if (out.bearingKnown) out.bearing = *there;
    rows.push_back(std::move(out));
    return nullptr;
}

} // namespace

Table<AirportIn> readAirports(const Reading& reading) {
    Table<AirportIn> table;
    readHeadedRows<AirportColumns>(
        reading, table, [&](const Cells& c, const AirportColumns& at) { return airport(c, at, table.rows); });
    return table;
}

Table<RunwayIn> readRunways(const Reading& reading) {
    Table<RunwayIn> table;
    readHeadedRows<RunwayColumns>(reading, table,
                                  [&](const Cells& c, const RunwayColumns& at) -> const char* {
                                      if (cellAt(c, at.airport).empty()) return "no airport";
                                      if (cellAt(c, at.closed) == "1") return nullptr;
                                      const double length = realIn(cellAt(c, at.length)).value_or(0);
                                      table.rows.push_back({std::string(cellAt(c, at.airport)),
                                                            length > 0 && length < 100000 ? length : 0,
                                                            runwayEnd(c, at.low), runwayEnd(c, at.high)});
                                      return nullptr;
                                  });
    return table;
}

Table<RadioIn> readRadios(const Reading& reading) {
    Table<RadioIn> table;
    readHeadedRows<RadioColumns>(reading, table, [&](const Cells& c, const RadioColumns& at) -> const char* {
        const auto megahertz = realIn(cellAt(c, at.megahertz));
        if (cellAt(c, at.airport).empty() || !megahertz || *megahertz <= 0 || *megahertz >= 1000)
            return "no airport, or no frequency";
        table.rows.push_back(
            {std::string(cellAt(c, at.airport)), std::string(cellAt(c, at.type)), *megahertz});
        return nullptr;
    });
    return table;
}

Table<NavAidIn> readRadioAids(const Reading& reading) {
    Table<NavAidIn> table;
    readHeadedRows<AidColumns>(
        reading, table, [&](const Cells& c, const AidColumns& at) { return radioAid(c, at, table.rows); });
    return table;
}

} // namespace gatewise::importer
