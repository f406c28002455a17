#include "import/Kinds.h"

#include "import/Header.h"
#include "import/NavigationForm.h"

#include <algorithm>
#include <array>

namespace gatewise::importer {

namespace {

struct KindRow {
    Kind kind;
    std::string_view name;
};

constexpr auto kNames = std::to_array<KindRow>({
    {Kind::Unknown, "unknown"},
    {Kind::WorldAirports, "airports (OpenFlights)"},
    {Kind::WorldAirlines, "airlines (OpenFlights)"},
    {Kind::WorldPlanes, "aircraft types (OpenFlights)"},
    {Kind::WorldRoutes, "routes (OpenFlights)"},
    {Kind::Airports, "airports (OurAirports)"},
    {Kind::Runways, "runways (OurAirports)"},
    {Kind::Radios, "frequencies (OurAirports)"},
    {Kind::RadioAids, "navaids (OurAirports)"},
    {Kind::Fixes, "fixes (navigation form)"},
    {Kind::NavAids, "navaids (navigation form)"},
    {Kind::Airways, "airways (navigation form)"},
    {Kind::OnTime, "flights as flown (on-time data)"},
    {Kind::Tails, "tail numbers (plane data)"},
    {Kind::Registry, "tail numbers (FAA registry)"},
    {Kind::RegistryModels, "models (FAA registry)"},
    {Kind::Carriers, "carriers"},
    {Kind::OwnFlights, "own flights"},
});

struct HeaderRow {
    Kind kind;
    std::array<std::string_view, 6> columns; // all that are named must be there
    std::string_view without;                // a column that must not
};

// On-time data and own flights are told apart by their readers, which know the other names of their columns.
constexpr auto kHeaders = std::to_array<HeaderRow>({
    {Kind::Airports, {"ident", "type", "name", "latitudedeg", "longitudedeg", ""}, "frequencykhz"},
    {Kind::Runways, {"airportident", "leident", "heident", "", "", ""}, ""},
    {Kind::Radios, {"airportident", "type", "frequencymhz", "", "", ""}, ""},
    {Kind::RadioAids, {"ident", "type", "frequencykhz", "latitudedeg", "longitudedeg", ""}, ""},
    {Kind::Tails, {"tailnum", "manufacturer", "model", "", "", ""}, ""},
    {Kind::Registry, {"n-number", "mfr mdl code", "", "", "", ""}, ""},
    {Kind::RegistryModels, {"code", "mfr", "model", "", "", ""}, ""},
    {Kind::OnTime, {"origin", "dest", "crsdeptime", "crsarrtime", "", ""}, ""},
    {Kind::OwnFlights, {"origin", "departure", "destination", "arrival", "airline", "number"}, ""},
});

bool fits(const HeaderRow& row, const Header& header) {
    const auto there = [&](std::string_view name) { return name.empty() || header.column({name}) >= 0; };
    return std::all_of(row.columns.begin(), row.columns.end(), there) &&
           (row.without.empty() || header.column({row.without}) < 0);
}

Kind byHeader(std::string_view line) {
    Cells cells;
    if (!cells.commas(line)) return Kind::Unknown;
    const Header header(cells);
    for (const HeaderRow& row : kHeaders)
        if (fits(row, header)) return row.kind;
    const bool carriers =
        cells.size() == 2 && header.column({"code"}) == 0 && header.column({"description"}) == 1;
    return carriers ? Kind::Carriers : Kind::Unknown;
}

bool isPlane(const Cells& c) {
    const auto code = [&](std::size_t at, std::size_t most) {
        return c[at].empty() || isCode(c[at], 2, most);
    };
    return c.size() == 3 && !c[0].empty() && code(1, 3) && code(2, 4) && !(c[1].empty() && c[2].empty());
}

bool isOnTime(const Cells& c) {
    const auto year = wholeIn(c[0]);
    const auto month = wholeIn(c[1]);
    const auto day = wholeIn(c[2]);
    return c.size() >= 23 && year && *year >= 1987 && *year <= 2100 && month && *month >= 1 && *month <= 12 &&
           day && *day >= 1 && *day <= 31 && isCode(c[16], 3, 3) && isCode(c[17], 3, 3);
}

bool isAirport(const Cells& c) {
    return c.size() >= 11 && c.size() <= 14 && wholeIn(c[0]) && latitudeIn(c[6]) && longitudeIn(c[7]) &&
           wholeIn(c[8]);
}

/// The kind of a line of a table that has no header.
Kind byLine(std::string_view line) {
    Cells c;
    if (!c.commas(line, Quotes::Backslash)) return Kind::Unknown;
    if (isOnTime(c)) return Kind::OnTime;
    if (isAirport(c)) return Kind::WorldAirports;
    if (c.size() == 8 && wholeIn(c[0]) && (c[7] == "Y" || c[7] == "N")) return Kind::WorldAirlines;
    if (c.size() == 9 && isCode(c[2], 3, 4) && isCode(c[4], 3, 4) && wholeIn(c[7])) return Kind::WorldRoutes;
    if (isPlane(c) && line.starts_with('"')) return Kind::WorldPlanes;
    return Kind::Unknown;
}

} // namespace

std::string_view nameOf(Kind kind) {
    const auto* row =
        std::find_if(kNames.begin(), kNames.end(), [&](const KindRow& r) { return r.kind == kind; });
    return row == kNames.end() ? kNames.front().name : row->name;
}

Recognised recognise(std::span<const std::string> lines) {
    if (lines.empty()) return {};
    if (isNavigationForm(lines)) return recogniseNavigation(lines);
    Recognised out{byHeader(lines[0]), 0, ""};
    for (const std::string& line : lines) {
        if (out.kind != Kind::Unknown) break;
        out.kind = byLine(line);
    }
    return out;
}

} // namespace gatewise::importer
