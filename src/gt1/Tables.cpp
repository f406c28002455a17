#include "gt1/Tables.h"

#include "platform/Files.h"

#include <algorithm>

namespace gatewise::gt1 {

namespace {

/// Every name once, and no other.
bool headerFits(const CsvRow& header, std::string_view file, const ColumnNames& columns,
                std::vector<std::size_t>& order, Report& report) {
    const std::vector<std::string>& names = columns.names;
    const auto mayMiss = [&](const std::string& name) {
        return std::find(columns.mayMiss.begin(), columns.mayMiss.end(), name) != columns.mayMiss.end();
    };
    bool good = true;
    for (std::size_t i = 0; i < header.cells.size(); ++i) {
        const std::string& name = header.cells[i];
        const bool known = std::find(names.begin(), names.end(), name) != names.end();
        const bool again = std::find(header.cells.begin(), header.cells.begin() + static_cast<long>(i),
                                     name) != header.cells.begin() + static_cast<long>(i);
        if (known && !again) continue;
        report.unreadable({std::string(file), header.line, static_cast<int>(i) + 1, name},
                          again ? "each column once" : "a column of this table", inQuotes(name));
        good = false;
    }
    for (const std::string& name : names) {
        const auto cell = std::find(header.cells.begin(), header.cells.end(), name);
        order.push_back(static_cast<std::size_t>(cell - header.cells.begin()));
        if (cell != header.cells.end() || mayMiss(name)) continue;
        report.unreadable({std::string(file), header.line, 0, ""}, "a column " + name, "none in the header");
        good = false;
    }
    return good;
}

} // namespace

std::optional<CsvFile> readCsv(const std::filesystem::path& folder, std::string_view file,
                               const ColumnNames& names, std::vector<std::size_t>& order, Report& report) {
    const Place whole{std::string(file), 0, 0, ""};
    std::error_code error;
    const auto bytes = files::readAll(files::textOf(folder / file), &error);
    if (!bytes) {
        report.unreadable(whole, "this table in " + folder.string(), error.message());
        return std::nullopt;
    }
    CsvFile csv = parseCsv(asText(*bytes), [&report] { return report.goesOn(); });
    if (report.stopped()) return std::nullopt; // half a table
    for (const BadQuote& bad : csv.badQuotes) {
        const auto column = static_cast<std::size_t>(bad.column);
        const bool named = !csv.rows.empty() && column <= csv.rows[0].cells.size();
        report.unreadable(
            {std::string(file), bad.line, bad.column, named ? csv.rows[0].cells[column - 1] : ""},
            bad.expected, "none");
    }
    if (!csv.badQuotes.empty() && (csv.rows.empty() || csv.badQuotes[0].line < csv.rows[0].line))
        return std::nullopt; // no header to read the rest by
    if (csv.rows.empty()) {
        report.unreadable(whole, "a header line", "an empty file");
        return std::nullopt;
    }
    if (!headerFits(csv.rows[0], file, names, order, report)) return std::nullopt;
    return csv;
}

bool fullLine(const CsvRow& line, std::size_t columns, std::string_view file, Report& report) {
    if (line.cells.size() == columns) return true;
    report.error({std::string(file), line.line, 0, ""}, std::to_string(columns) + " columns",
                 std::to_string(line.cells.size()));
    return false;
}

} // namespace gatewise::gt1
