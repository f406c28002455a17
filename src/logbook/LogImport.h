#pragma once

#include "logbook/LogRecord.h"

#include <string>
#include <string_view>
#include <vector>

// Log books of other programs: tables of text with a header line, known by the names in it.

namespace gatewise {

struct LogImport {
    std::vector<LogRecord> entries; // new ones, in the order of the file
    int rows = 0;                   // rows behind the header
    int duplicates = 0;             // rows that the log book or the file itself has already
    int unread = 0;                 // rows without a date or an airport that can be read
    bool full = false;              // some entries found no room in the log book any more
    bool known = false;             // a header line was found
};

/// Reads a table in UTF-8 or Windows-1252, its fields apart by comma, semicolon or tab, beside the entries
/// that the log book has. Known are the columns of this program's own export and those under which other log
/// books keep date, airports, times, hours, aircraft, airline, flight number and remarks; lines before the
/// header (a table of aircraft) are passed over. Changes nothing.
LogImport importLog(std::string_view text, const std::vector<LogRecord>& present);

} // namespace gatewise
