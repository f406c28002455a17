#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace gatewise::gt1 {

struct CsvRow {
    int line = 0; // where the row begins, from 1
    std::vector<std::string> cells;
};

/// A quote out of place; its line is left out of the rows.
struct BadQuote {
    int line = 0;
    int column = 0;       // field in its row, from 1
    std::string expected; // what should have stood there
};

struct CsvFile {
    std::vector<CsvRow> rows; // the header is the first; empty lines are left out
    std::vector<BadQuote> badQuotes;
};

/// Comma-separated values: fields with commas, quotes or line ends in double quotes, quotes inside doubled;
/// LF or CR LF; a byte-order mark is skipped. `goesOn` is asked before each row, false ends the reading.
CsvFile parseCsv(std::string_view text, const std::function<bool()>& goesOn = {});

/// One line with its LF.
std::string csvLine(const std::vector<std::string>& cells);

} // namespace gatewise::gt1
