#pragma once

#include "logbook/LogRecord.h"

#include <string_view>
#include <vector>

// logrecords.gt1, by which a companion in the simulator brings actual block times back.

namespace gatewise {

/// Records of the file for these entries, written over the bytes of the old file; what lies behind the new
/// end stays.
Bytes exchangeBytes(const std::vector<LogRecord>& entries, ByteView old);

/// Takes actual times over: for each entry the first record of its index. More than kLogEntries records are
/// an error and change nothing.
void mergeExchange(ByteView bytes, std::vector<LogRecord>& entries);

/// The same on the file; both end silently on any error, and merging creates a missing file empty. No entries
/// leave the file as it is.
void WriteLogRecords(std::string_view path, const std::vector<LogRecord>& entries);
void MergeLogRecords(std::string_view path, std::vector<LogRecord>& entries);

} // namespace gatewise
