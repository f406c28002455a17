#pragma once

#include "gt1/Cells.h"
#include "gt1/Csv.h"
#include "gt1/Report.h"

#include <filesystem>
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
/// when the file is missing, no CSV, or has other columns. `order` receives the cell of each name.
std::optional<CsvFile> readCsv(const std::filesystem::path& folder, std::string_view file,
                               const std::vector<std::string>& names, std::vector<std::size_t>& order,
                               Report& report);

/// False, with an error in the report, when a line has too many or too few cells.
bool fullLine(const CsvRow& line, std::size_t columns, std::string_view file, Report& report);

template<class Row> Table<Row> readTable(const std::filesystem::path& folder, Report& report) {
    Table<Row> table;
    std::vector<std::size_t> order;
    const auto csv = readCsv(folder, Row::file, columnNames<Row>(), order, report);
    if (!csv) return table;
    table.header = csv->rows[0].cells;
    table.lines.reserve(csv->rows.size() - 1);
    for (std::size_t i = 1; i < csv->rows.size(); ++i) {
        const CsvRow& line = csv->rows[i];
        if (!fullLine(line, table.header.size(), Row::file, report)) continue;
        Row row{};
        CellReader cells(report, Row::file, line.line, line.cells, order);
        Row::columns(row, cells);
        table.lines.push_back({line.line, std::move(row)});
    }
    return table;
}

/// The text of a table with its header.
template<class Row> std::string tableText(const std::vector<Row>& rows) {
    std::string out = csvLine(columnNames<Row>());
    for (const Row& row : rows) {
        CellWriter cells;
        Row::columns(row, cells);
        out += csvLine(cells.cells);
    }
    return out;
}

} // namespace gatewise::gt1
