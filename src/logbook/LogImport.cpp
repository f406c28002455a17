#include "logbook/LogImport.h"

#include "logbook/AircraftTable.h"
#include "logbook/ImportFields.h"
#include "logbook/ImportHeaders.h"
#include "logbook/SeparatedText.h"
#include "platform/Text.h"

#include <algorithm>
#include <array>
#include <optional>
#include <set>
#include <tuple>

namespace gatewise {

namespace {

constexpr int kMostHeadRows = 5000; // before the header

using Columns = std::array<int, kFields>; // -1: the table has none
using Cells = std::vector<std::string>;

Columns columnsOf(const Cells& header) {
    // Each cell's name is made once: in a table without a header every row is looked at.
    Cells names;
    names.reserve(header.size());
    for (const std::string& cell : header) names.push_back(headerName(cell));
    Columns columns;
    columns.fill(-1);
    for (const auto& row : kHeaders) {
        int& column = columns[row.field];
        if (column >= 0) continue;
        const auto found = std::find(names.begin(), names.end(), row.name);
        if (found != names.end()) column = static_cast<int>(found - names.begin());
    }
    return columns;
}

bool isHeader(const Columns& c) {
    return c[kDate] >= 0 && ((c[kFrom] >= 0 && c[kTo] >= 0) || c[kRoute] >= 0);
}

/// Leaves the reader behind the header; what stands before it may be a table of aircraft.
std::optional<Columns> takeHeader(SeparatedText& table, AircraftTable& aircraft) {
    Cells cells;
    for (int row = 0; row < kMostHeadRows && table.next(cells); ++row) {
        const Columns columns = columnsOf(cells);
        if (isHeader(columns)) return columns;
        aircraft.take(cells);
    }
    return std::nullopt;
}

/// One row's cells by their fields, control characters as blanks.
class Line {
public:
    Line(const Columns& columns, Cells& cells) : columns_(columns), cells_(cells) {
        for (std::string& cell : cells_) blankControls(cell);
    }
    [[nodiscard]] std::string_view operator[](Field field) const {
        const auto column = static_cast<std::size_t>(columns_[field]);
        if (columns_[field] < 0 || column >= cells_.size()) return {};
        return trimmed(cells_[column]);
    }

private:
    const Columns& columns_;
    Cells& cells_;
};

void fillHours(const Line& line, LogRecord& entry) {
    const double night = importedHours(line[kNight]);
    const double day = line[kDay].empty() ? importedHours(line[kTotal]) - night : importedHours(line[kDay]);
    entry.dayHours = static_cast<float>(std::clamp(day, 0.0, 99.9));
    entry.nightHours = static_cast<float>(night);
    entry.instrumentHours =
        static_cast<float>(std::min(importedHours(line[kInstrument]) + importedHours(line[kHood]), 99.9));
}

void fillTimes(const Line& line, LogRecord& entry) {
    const int out = importedTime(line[kOut]);
    const int in = importedTime(line[kIn]);
    const int scheduledOut = importedTime(line[kScheduledOut]);
    const int scheduledIn = importedTime(line[kScheduledIn]);
    const auto first = [](int a, int b) { return static_cast<std::int16_t>(a >= 0 ? a : std::max(b, 0)); };
    entry.actualDeparture = first(out, scheduledOut);
    entry.actualArrival = first(in, scheduledIn);
    entry.scheduledDeparture = first(scheduledOut, out);
    entry.scheduledArrival = first(scheduledIn, in);
}

/// A code and a name out of their two fields; what is too long for a code is a name.
void fillAirport(std::string_view code, std::string_view name, FixedText<4>& icao, FixedText<35>& named) {
    if (code.size() <= 4) icao = code;
    named = code.size() > 4 && name.empty() ? code : name;
}

bool hasAirport(const FixedText<4>& icao, const FixedText<35>& name) {
    return !icao.trimmed().empty() || !name.trimmed().empty();
}

/// First and last airport of a route; a route of one code is a flight around it.
std::pair<std::string, std::string> endsOf(std::string_view route) {
    const bool code = (route.size() == 3 || route.size() == 4) && headerName(route).size() == route.size();
    return code ? std::pair(std::string(route), std::string(route)) : routeEnds(route);
}

std::optional<LogRecord> entryOf(const Line& line, bool dayFirst) {
    LogRecord entry;
    const auto date = importedDate(line[kDate], dayFirst);
    const bool ends = line[kFrom].empty() && line[kFromName].empty() && line[kTo].empty();
    const auto [from, to] =
        ends ? endsOf(line[kRoute]) : std::pair(std::string(line[kFrom]), std::string(line[kTo]));
    fillAirport(from, line[kFromName], entry.departureIcao, entry.departureName);
    fillAirport(to, line[kToName], entry.arrivalIcao, entry.arrivalName);
    if (!date || !hasAirport(entry.departureIcao, entry.departureName) ||
        !hasAirport(entry.arrivalIcao, entry.arrivalName))
        return std::nullopt;
    entry.date = *date;
    entry.aircraft = line[kAircraft];
    entry.airline = line[kAirline].empty() ? flightCarrier(line[kFlight]) : line[kAirline];
    entry.flightNumber = flightNumber(line[kFlight]);
    entry.comments = line[kRemarks];
    fillTimes(line, entry);
    fillHours(line, entry);
    return entry;
}

/// Whether the table, from where the reader stands, has a date that can only be read with the day first.
bool dayComesFirst(SeparatedText table, const Columns& columns) {
    Cells cells;
    for (std::size_t row = 0; row < kMostLogRows && table.next(cells); ++row) {
        if (saysDayFirst(Line(columns, cells)[kDate])) return true;
    }
    return false;
}

void takeRows(SeparatedText table, const Columns& columns, const AircraftTable& aircraft, LogTable& out) {
    const bool dayFirst = dayComesFirst(table, columns);
    Cells cells;
    while (table.next(cells)) {
        out.cut = out.rows.size() == kMostLogRows;
        if (out.cut) return;
        auto entry = entryOf(Line(columns, cells), dayFirst);
        if (entry) entry->aircraft = aircraft.typeOf(entry->aircraft.trimmed());
        out.rows.push_back(
            {static_cast<int>(out.rows.size()) + 1, entry.has_value(), entry.value_or(LogRecord())});
    }
}

using Key = std::tuple<long long, std::string, std::string, int, int>;

/// What makes an entry the same flight as another.
Key keyOf(const LogRecord& e) {
    const long long day = e.date > -1e6 && e.date < 1e7 ? static_cast<long long>(e.date) : 0;
    const auto place = [](const FixedText<4>& icao, const FixedText<35>& name) {
        return upperCase(icao.trimmed().empty() ? name.trimmed() : icao.trimmed());
    };
    return {day, place(e.departureIcao, e.departureName), place(e.arrivalIcao, e.arrivalName), e.flightNumber,
            e.actualDeparture};
}

} // namespace

LogTable readLogTable(std::string_view text) {
    LogTable out;
    const std::string whole = importedText(text);
    for (const char sign : {',', ';', '\t'}) {
        SeparatedText table(whole, sign);
        AircraftTable aircraft;
        const auto columns = takeHeader(table, aircraft);
        if (!columns) continue;
        out.known = true;
        takeRows(table, *columns, aircraft, out);
        break;
    }
    return out;
}

LogImport importLog(const LogTable& table, const std::vector<LogRecord>& present) {
    LogImport out;
    out.known = table.known;
    out.cut = table.cut;
    std::set<Key> seen;
    for (const LogRecord& entry : present) seen.insert(keyOf(entry));
    for (const LogTable::Row& row : table.rows) {
        Fate fate = Fate::Unread;
        if (row.read && !seen.insert(keyOf(row.entry)).second)
            fate = Fate::Known;
        else if (row.read)
            fate = present.size() + out.entries.size() < kLogEntries ? Fate::New : Fate::NoRoom;
        if (fate == Fate::New) out.entries.push_back(row.entry);
        out.full = out.full || fate == Fate::NoRoom;
        out.duplicates += fate == Fate::Known ? 1 : 0;
        out.unread += fate == Fate::Unread ? 1 : 0;
        out.list.push_back({row.number, fate, row.entry});
        ++out.rows;
    }
    return out;
}

} // namespace gatewise
