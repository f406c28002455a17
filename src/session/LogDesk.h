#pragma once

#include "logbook/LogBook.h"

#include <cstdint>
#include <string>
#include <vector>

namespace gatewise {

/// An entry that was deleted in this run, and where it stood.
struct DeletedEntry {
    std::size_t index = 0;
    LogRecord entry;
};

/// The log book as it is leafed through and edited.
struct LogDesk {
    std::vector<LogRecord> LogEntries; // 0 to LastLogIndex
    LogStore logStore;
    std::vector<DeletedEntry> deleted; // latest last
    std::vector<LogRecord> unkept; // of LogEntries, those that no file took: filed when the book can be read
    LogRecord LogWorkingCopy;      // the entry as it was when its screen opened
    std::int16_t LogPage = 1;
    std::int16_t LogSelected = 0;
    std::string LogField; // "dept", "arr", "day", "night", "inst": what the clock screen edits
    [[nodiscard]] int LastLogIndex() const { return static_cast<int>(LogEntries.size()) - 1; }
    /// The entry LogSelected; nullptr when no entry is selected.
    [[nodiscard]] LogRecord* selected() {
        return LogSelected < 0 || LogSelected > LastLogIndex()
                   ? nullptr
                   : &LogEntries[static_cast<std::size_t>(LogSelected)];
    }
};

} // namespace gatewise
