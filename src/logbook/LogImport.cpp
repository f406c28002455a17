#include "logbook/LogImport.h"

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

using Columns = std::array<int, kFields>; // -1: the table has none

using Rows = std::vector<std::vector<std::string>>;

Columns columnsOf(const std::vector<std::string>& header) {
    // Each cell's name is made once: in a table without a header every row is looked at.
    std::vector<std::string> names;
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

struct Table {
    Rows rows;
    std::size_t first = 0; // row behind the header
    Columns columns{};
};

std::optional<Table> tableOf(const std::string& text) {
    for (const char sign : {',', ';', '\t'}) {
        Table table{separatedRows(text, sign), 0, {}};
        for (; table.first < table.rows.size(); ++table.first) {
            table.columns = columnsOf(table.rows[table.first]);
            if (!isHeader(table.columns)) continue;
            ++table.first;
            return table;
        }
    }
    return std::nullopt;
}

/// One row's cells by their fields.
class Line {
public:
    Line(const Columns& columns, const std::vector<std::string>& cells) : columns_(columns), cells_(cells) {}
    [[nodiscard]] std::string_view operator[](Field field) const {
        const auto column = static_cast<std::size_t>(columns_[field]);
        if (columns_[field] < 0 || column >= cells_.size()) return {};
        return trimmed(cells_[column]);
    }

private:
    const Columns& columns_;
    const std::vector<std::string>& cells_;
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

std::optional<LogRecord> entryOf(const Line& line, bool dayFirst) {
    LogRecord entry;
    const auto date = importedDate(line[kDate], dayFirst);
    const auto [from, to] = line[kFrom].empty() && line[kTo].empty()
                                ? routeEnds(line[kRoute])
                                : std::pair(std::string(line[kFrom]), std::string(line[kTo]));
    if (!date || from.empty() || to.empty()) return std::nullopt;
    entry.date = *date;
    entry.departureIcao = from;
    entry.arrivalIcao = to;
    entry.departureName = line[kFromName];
    entry.arrivalName = line[kToName];
    entry.aircraft = line[kAircraft];
    entry.airline = line[kAirline];
    entry.flightNumber = flightNumber(line[kFlight]);
    entry.comments = line[kRemarks];
    fillTimes(line, entry);
    fillHours(line, entry);
    return entry;
}

using Key = std::tuple<long long, std::string, std::string, int, int>;

/// What makes an entry the same flight as another.
Key keyOf(const LogRecord& e) {
    const long long day = e.date > -1e6 && e.date < 1e7 ? static_cast<long long>(e.date) : 0;
    return {day, std::string(e.departureIcao.trimmed()), std::string(e.arrivalIcao.trimmed()), e.flightNumber,
            e.actualDeparture};
}

} // namespace

LogImport importLog(std::string_view text, const std::vector<LogRecord>& present) {
    LogImport out;
    const auto table = tableOf(importedText(text));
    if (!table) return out;
    out.known = true;
    std::set<Key> seen;
    for (const LogRecord& entry : present) seen.insert(keyOf(entry));
    const bool dayFirst =
        std::any_of(table->rows.begin() + static_cast<std::ptrdiff_t>(table->first), table->rows.end(),
                    [&](const auto& cells) { return saysDayFirst(Line(table->columns, cells)[kDate]); });
    for (std::size_t i = table->first; i < table->rows.size(); ++i) {
        ++out.rows;
        const auto entry = entryOf(Line(table->columns, table->rows[i]), dayFirst);
        if (!entry)
            ++out.unread;
        else if (!seen.insert(keyOf(*entry)).second)
            ++out.duplicates;
        else if (present.size() + out.entries.size() >= kLogEntries)
            out.full = true;
        else
            out.entries.push_back(*entry);
    }
    return out;
}

} // namespace gatewise
