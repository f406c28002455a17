#pragma once

#include "logbook/LogRecord.h"

#include <functional>
#include <string_view>
#include <system_error>
#include <vector>

// The pilot's flights in LogBook.gt1: records one after the other in the order of entry.

namespace gatewise {

/// Whole records of a log book's bytes, at most kLogEntries; a broken last record does not count.
std::vector<LogRecord> logEntriesOf(ByteView bytes);

/// The file's entries; none when it is missing or empty, and none with an `error` when it cannot be read.
std::vector<LogRecord> readLogBook(std::string_view path, std::error_code* error = nullptr);

/// Changes of the file, each in one replacement: the old or the new log book is whole at any moment. Before
/// the first change of a day (`today`, a day serial), and always before a file that is no whole number of
/// records or has another length than this store left or read is replaced, the file is kept beside it as
/// "LogBook.bak".
///
/// A log book that could not be read is no empty one. The store is then in doubt: it refuses every change
/// with the error of the reading until a reading succeeds, and new entries wait beside the file in
/// "LogBook.new".
class LogStore {
public:
    /// Bytes of the entries that were read last; a file that has shrunk or grown since is another's work.
    void remember(long long length) { known_ = length; }

    /// Reads the file into `entries`, and files those that waited beside it. On an error `entries` stay as
    /// they are and the store is in doubt. Waiting entries that cannot be filed yet stand behind the others
    /// all the same.
    std::error_code load(std::string_view path, long long today, std::vector<LogRecord>& entries);

    /// Why the log book is not known; no error when it is.
    [[nodiscard]] std::error_code doubt() const { return doubt_; }

    /// Keeps an entry beside the file until the file can be read.
    [[nodiscard]] static std::error_code keepBeside(std::string_view path, const LogRecord& record);

    /// Writes a record behind all others, those of another program among them.
    [[nodiscard]] std::error_code add(std::string_view path, const LogRecord& record, long long today,
                                      const std::vector<LogRecord>& entries);

    /// Writes several behind all others, in one replacement.
    [[nodiscard]] std::error_code append(std::string_view path, const std::vector<LogRecord>& records,
                                         long long today, const std::vector<LogRecord>& entries);

    /// Writes a record at its place and leaves all other bytes as they are. Where the file ends before that
    /// place, what it has lost meanwhile comes back from `entries`, the log book in memory.
    std::error_code put(std::string_view path, std::size_t index, const LogRecord& record, long long today,
                        const std::vector<LogRecord>& entries = {});

    /// Writes the file anew with these entries alone.
    std::error_code rewrite(std::string_view path, const std::vector<LogRecord>& entries, long long today);

private:
    using Change = std::function<Bytes(Bytes old)>;
    std::error_code change(std::string_view path, long long today, const Change& change);
    std::error_code backUp(std::string_view path, ByteView old, long long today);
    void takeKept(std::string_view path, long long today, std::vector<LogRecord>& entries);

    long long known_ = 0;      // bytes
    long long backedUpOn_ = 0; // day serial of the last backup, of this run or by the backup's own time
    std::error_code doubt_;
};

} // namespace gatewise
