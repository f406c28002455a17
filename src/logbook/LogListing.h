#pragma once

#include "logbook/LogRecord.h"
#include "logbook/LogTexts.h"

#include <string>
#include <vector>

// The log book for other eyes: as a table for other log books, and a page of it on paper.

namespace gatewise {

/// "2002-06-15"; empty for a date serial that no calendar holds.
std::string isoDate(double serial);

/// All entries as CSV in UTF-8 with a header line, lines ended by CR LF; dates as 2002-06-15, times as 07:35,
/// hours with ".".
std::string logCsv(const std::vector<LogRecord>& entries);

/// Page `page` (from 1) as a listing for a fixed pitch, at most 80 characters a line, lines ended by line
/// feeds.
std::string logListing(const std::vector<LogRecord>& entries, int page, const std::string& pilot,
                       const NumberLocale& numbers);

} // namespace gatewise
