#pragma once

#include "import/Cells.h"
#include "import/Findings.h"
#include "import/Header.h"
#include "import/Job.h"
#include "import/Lines.h"
#include "import/Raw.h"

#include <string>
#include <string_view>

// What all readers share. Each takes a source of its kind, whose form recognise() has found, and gives the
// rows that can be used; the others are findings. A cancelled job gives what was read so far.

namespace gatewise::importer {

inline constexpr std::string_view kBadRow = "rows that cannot be read";

/// A cell as a text of its own.
inline std::string text(std::string_view cell) {
    return std::string(cell);
}

struct Reading {
    const Source& source;
    Findings& findings;
    const Job& job;
};

/// Calls `each(line number, line)` for every line that is not empty, and fills in the table's edition.
/// `each` returns why a row is no good, nullptr when all is well.
template<class Row, class Each> void readLines(const Reading& reading, Table<Row>& table, Each each) {
    const auto bytes = reading.source.open();
    Lines lines(*bytes);
    while (lines.next()) {
        if ((lines.number() & 1023) == 0 && reading.job.cancelled()) break;
        if (lines.text().empty()) continue;
        if (const char* fault = each(lines.number(), lines.text()); fault != nullptr)
            reading.findings.row(kBadRow, reading.source.name, lines.number(), fault);
    }
    table.error = lines.error();
    table.edition.rows = static_cast<long long>(table.rows.size());
    table.edition.digest = lines.digest();
    table.edition.file = reading.source.name;
}

/// The same for comma-separated rows without a header.
template<class Row, class Each> void readPlainRows(const Reading& reading, Table<Row>& table, Each each) {
    Cells cells;
    readLines(reading, table, [&](int, std::string_view line) -> const char* {
        if (!cells.commas(line, Quotes::Backslash)) return "a quote out of place";
        return each(cells);
    });
}

/// The same for rows below a header line; `columns` is made from the header.
template<class Columns, class Row, class Each>
void readHeadedRows(const Reading& reading, Table<Row>& table, Each each) {
    Cells cells;
    Columns columns;
    readLines(reading, table, [&](int number, std::string_view line) -> const char* {
        if (!cells.commas(line)) return "a quote out of place";
        if (number == 1) {
            columns = Columns(Header(cells));
            return nullptr;
        }
        return each(cells, columns);
    });
}

} // namespace gatewise::importer
