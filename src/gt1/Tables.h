#pragma once

#include "gt1/Cells.h"
#include "gt1/Csv.h"
#include "gt1/Report.h"

#include <algorithm>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <vector>

namespace gatewise::gt1 {

/// A table as it was read: rows, and where each of them and each column stands.
template<class Row> struct Table {
    struct Line {
        int line = 0;
        Row row;
    };
    std::vector<Line> lines;
    std::vector<std::string> header;

    /// Column `name` of a line, for messages.
    [[nodiscard]] Place place(int line, std::string_view name) const {
        Place out{std::string(Row::file), line, 0, std::string(name)};
        for (std::size_t i = 0; i < header.size(); ++i)
            if (header[i] == name) out.column = static_cast<int>(i) + 1;
        return out;
    }
};

/// The rows of a table's file with the header checked against `names`; nothing, with errors in the report,
/// when the file is missing, no CSV, or has other columns. `order` receives the cell of each name, one past
/// the last cell for a column that is missing and may be.
std::optional<CsvFile> readCsv(const std::filesystem::path& folder, std::string_view file,
                               const ColumnNames& names, std::vector<std::size_t>& order, Report& report);

/// False, with an error in the report, when a line has too many or too few cells.
bool fullLine(const CsvRow& line, std::size_t columns, std::string_view file, Report& report);

template<class Row> Table<Row> readTable(const std::filesystem::path& folder, Report& report) {
    Table<Row> table;
    std::vector<std::size_t> order;
    const auto csv = readCsv(folder, Row::file, columnNames<Row>(), order, report);
    if (!csv) return table;
    table.header = csv->rows[0].cells;
    table.lines.reserve(csv->rows.size() - 1);
    for (std::size_t i = 1; i < csv->rows.size() && report.goesOn(); ++i) {
        const CsvRow& line = csv->rows[i];
        if (!fullLine(line, table.header.size(), Row::file, report)) continue;
        Row row{};
        CellReader cells(report, Row::file, line.line, line.cells, order);
        Row::columns(row, cells);
        table.lines.push_back({line.line, std::move(row)});
    }
    return table;
}

/// Whether a table is to have a column of regions: where a row knows one.
template<class Row> bool anyRegion(const std::vector<Row>& rows) {
    if constexpr (requires(const Row& row) { row.region; })
        return std::any_of(rows.begin(), rows.end(),
                           [](const Row& row) { return !row.region.trimmed().empty(); });
    else
        return false;
}

/// The text of a table with its header. `goesOn` is asked before each row; false ends the work, and the text
/// is of no use.
template<class Row>
std::string tableText(const std::vector<Row>& rows, const std::function<bool()>& goesOn = {}) {
    const bool regions = anyRegion(rows);
    ColumnNames names = columnNames<Row>();
    if (!regions) names.names.resize(names.names.size() - names.mayMiss.size()); // they are the last ones
    std::string out = csvLine(names.names);
    for (const Row& row : rows) {
        if (goesOn && !goesOn()) break;
        CellWriter cells(regions);
        Row::columns(row, cells);
        out += csvLine(cells.cells);
    }
    return out;
}

/// A table as it goes into its file.
struct NamedTable {
    std::string file;
    std::string text;
};

/// The table of records of one kind. `goesOn` as in tableText.
template<class Row, class Records>
NamedTable tableOf(const Records& records, const std::function<bool()>& goesOn = {}) {
    std::vector<Row> rows(records.size());
    for (std::size_t i = 0; i < records.size(); ++i) rows[i].record = records[i];
    return {std::string(Row::file), tableText(rows, goesOn)};
}

} // namespace gatewise::gt1
