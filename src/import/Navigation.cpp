#include "import/Navigation.h"

#include <algorithm>
#include <cmath>

namespace gatewise::importer {

namespace {

/// Calls `each` for the data lines between the head and the end mark; each(cells, regions) as in readLines.
template<class Row, class Each> void readForm(const Reading& reading, Table<Row>& table, Each each) {
    Cells cells;
    bool ended = false;
    bool regions = false;
    NavigationHead head;
    readLines(reading, table, [&](int number, std::string_view line) -> const char* {
        if (number == 2) {
            head = navigationHead(line);
            regions = head.version >= kFirstRegionVersion;
        }
        cells.blanks(line);
        if (number <= 2 || ended || cells.size() == 0) return nullptr;
        ended = cells.size() == 1 && cells[0] == "99";
        return ended ? nullptr : each(cells, regions);
    });
    table.edition.said = cycleOrder(head);
    table.edition.head = head;
}

const char* fix(const Cells& c, bool regions, std::vector<FixIn>& rows) {
    const auto latitude = latitudeIn(c[0]);
    const auto longitude = longitudeIn(c[1]);
    if (!latitude || !longitude) return "no position";
    if (c.size() < (regions ? 5U : 3U)) return "too few columns";
    rows.push_back(
        {*latitude, *longitude, text(c[2]), regions ? text(c[4]) : "", !regions || c[3] == "ENRT"});
    return nullptr;
}

/// The true course of a localizer: newer forms put 360 times the magnetic one in front.
double courseOf(double code) {
    return std::fmod(code, 360);
}

const char* navAid(const Cells& c, bool regions, std::vector<NavAidIn>& rows) {
    const auto row = wholeIn(c[0]);
    if (!row || *row < 2 || *row > 16) return "no kind of navaid";
    if (*row > 4) return nullptr; // parts of an ILS, markers, DME: no points of a plan
    const auto latitude = latitudeIn(c[1]);
    const auto longitude = longitudeIn(c[2]);
    const auto frequency = wholeIn(c[4]);
    const auto bearing = realIn(c[6]);
    if (!latitude || !longitude) return "no position";
    if (!frequency || *frequency < 0 || *frequency > 99999 || !bearing) return "no frequency or bearing";
    const bool localizer = *row == 4;
    if (c.size() < (localizer ? 10U : 8U) + (regions ? 2U : 0U)) return "too few columns";
    NavAidIn out;
    out.row = static_cast<int>(*row);
    out.latitude = *latitude;
    out.longitude = *longitude;
    out.frequency = static_cast<int>(*frequency);
    out.bearing = localizer ? courseOf(*bearing) : *bearing;
    out.bearingKnown = localizer || (*row == 3 && std::abs(*bearing) <= 180);
    out.ident = text(c[7]);
    if (regions) out.region = text(c[9]);
    if (localizer) {
        out.airport = text(c[8]);
        out.runway = text(c[regions ? 10 : 9]);
    } else {
        out.name = c.from(regions ? 10 : 8);
    }
    rows.push_back(std::move(out));
    return nullptr;
}

bool knownEnd(const AirwayEndIn& end) {
    return !end.ident.empty() && (end.type == 11 || end.type == 2 || end.type == 3);
}

const char* regionAirway(const Cells& c, std::vector<AirwayIn>& rows) {
    if (c.size() < 11) return "fewer than 11 columns";
    const auto end = [&](std::size_t at) {
        return AirwayEndIn{text(c[at]), text(c[at + 1]), 0, 0,
                           static_cast<int>(std::clamp(wholeIn(c[at + 2]).value_or(0), -1LL, 99LL))};
    };
    const char direction = c[6].size() == 1 ? c[6][0] : '?';
    AirwayIn out{end(0), end(3), direction, c[7] == "2", text(c[10])};
    if (!knownEnd(out.from) || !knownEnd(out.to)) return "an end that is no fix, NDB or VOR";
    if (direction != 'N' && direction != 'F' && direction != 'B') return "no direction of flight";
    if (c[7] != "1" && c[7] != "2") return "neither low nor high";
    rows.push_back(std::move(out));
    return nullptr;
}

const char* placedAirway(const Cells& c, std::vector<AirwayIn>& rows) {
    if (c.size() < 10) return "fewer than 10 columns";
    const auto lat1 = latitudeIn(c[1]);
    const auto lon1 = longitudeIn(c[2]);
    const auto lat2 = latitudeIn(c[4]);
    const auto lon2 = longitudeIn(c[5]);
    if (!lat1 || !lon1 || !lat2 || !lon2) return "no position";
    if (c[6] != "1" && c[6] != "2") return "neither low nor high";
    rows.push_back(
        {{text(c[0]), "", *lat1, *lon1, 0}, {text(c[3]), "", *lat2, *lon2, 0}, 'N', c[6] == "2", text(c[9])});
    return nullptr;
}

} // namespace

Table<FixIn> readFixes(const Reading& reading) {
    Table<FixIn> table;
    readForm(reading, table, [&](const Cells& c, bool regions) { return fix(c, regions, table.rows); });
    return table;
}

Table<NavAidIn> readNavAids(const Reading& reading) {
    Table<NavAidIn> table;
    readForm(reading, table, [&](const Cells& c, bool regions) { return navAid(c, regions, table.rows); });
    return table;
}

Table<AirwayIn> readAirways(const Reading& reading) {
    Table<AirwayIn> table;
    readForm(reading, table, [&](const Cells& c, bool regions) {
        return regions ? regionAirway(c, table.rows) : placedAirway(c, table.rows);
    });
    return table;
}

} // namespace gatewise::importer
