#pragma once

#include "logbook/LogRecord.h"

#include <string_view>
#include <vector>

// Log books of other programs: tables of text with a header line, known by the names in it.

namespace gatewise {

/// Rows of a table that are read; a log book holds a tenth of them.
inline constexpr std::size_t kMostLogRows = 100000;

/// A log book as its table has it.
struct LogTable {
    /// One row behind the header. Without an entry it has no date or no airport that can be read.
    struct Row {
        int number = 0; // of the row in the table, 1 for the first behind the header
        bool read = false;
        LogRecord entry;
    };
    std::vector<Row> rows;
    bool known = false; // a header line was found
    bool cut = false;   // there are more than kMostLogRows rows
};

/// Reads a table in UTF-8 or Windows-1252, its fields apart by comma, semicolon or tab. Known are the columns
/// of this program's own export and those under which other log books keep date, airports, times, hours,
/// aircraft, airline, flight number and remarks; lines before the header (a table of aircraft) are passed
/// over. An airport of more than four characters is taken for a name. Control characters become blanks.
LogTable readLogTable(std::string_view text);

/// What becomes of a row.
enum class Fate { New, Known, Unread, NoRoom };

/// What a table would bring into a log book.
struct LogImport {
    struct Row {
        int number = 0; // as in the table
        Fate fate = Fate::Unread;
        LogRecord entry;
    };
    std::vector<Row> list;          // every row of the table
    std::vector<LogRecord> entries; // new ones, in the order of the table
    int rows = 0;
    int duplicates = 0; // rows that the log book or the table itself has already
    int unread = 0;     // rows without a date or an airport that can be read
    bool full = false;  // some entries found no room in the log book any more
    bool known = false; // as in the table, and so `cut`
    bool cut = false;
};

/// The table beside the entries that the log book has. The same flight is one of the same day, airports,
/// flight number and departure. Changes nothing.
LogImport importLog(const LogTable& table, const std::vector<LogRecord>& present);

inline LogImport importLog(std::string_view text, const std::vector<LogRecord>& present) {
    return importLog(readLogTable(text), present);
}

} // namespace gatewise
