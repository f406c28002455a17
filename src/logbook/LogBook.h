#pragma once

#include "logbook/LogRecord.h"

#include <string_view>
#include <system_error>
#include <vector>

// The pilot's flights in LogBook.gt1: records one after the other in the order of entry.

namespace gatewise {

/// Whole records of a log book's bytes, at most kLogEntries; a broken last record does not count.
std::vector<LogRecord> logEntriesOf(ByteView bytes);

/// The file's entries; none when it is missing or empty.
std::vector<LogRecord> readLogBook(std::string_view path);

/// Changes of the file, each in one replacement: the old or the new log book is whole at any moment. Before
/// the first change of a day (`today`, a day serial), and always before a file that is no whole number of
/// records or has another length than this store left or read is replaced, the file is kept beside it as
/// "LogBook.bak".
class LogStore {
public:
    /// Bytes of the entries that were read last; a file that has shrunk or grown since is another's work.
    void remember(long long length) { known_ = length; }

    /// Writes a record at its place and leaves all other bytes as they are. Where the file ends before that
    /// place, what it has lost meanwhile comes back from `entries`, the log book in memory.
    std::error_code put(std::string_view path, std::size_t index, const LogRecord& record, long long today,
                        const std::vector<LogRecord>& entries = {});

    /// Writes the file anew with these entries alone.
    std::error_code rewrite(std::string_view path, const std::vector<LogRecord>& entries, long long today);

private:
    std::error_code backUp(std::string_view path, ByteView old, long long today);
    std::error_code replace(std::string_view path, const Bytes& bytes);

    long long known_ = 0;      // bytes
    long long backedUpOn_ = 0; // day serial of the last backup, of this run or by the backup's own time
};

} // namespace gatewise
