#include "work/ImportLog.h"

#include "logbook/ImportUndo.h"
#include "logbook/LogExchange.h"
#include "platform/Files.h"
#include "work/LogNames.h"

namespace gatewise {

namespace {

std::string counted(std::size_t count, const char* one, const char* many) {
    return std::to_string(count) + (count == 1 ? one : many);
}

/// Both log books in the words of the same tables: only then the same flight looks the same.
LogImport compare(const LogTable& table, const Tables& tables, const LogDesk& log) {
    LogNames names(tables);
    std::vector<LogRecord> present = log.LogEntries;
    for (LogRecord& entry : present) names.complete(entry);
    return importLog(table, present);
}

/// The exchange file with these entries alone, before the book is loaded again: what it holds behind them is
/// of entries that are gone, and would be taken for times of others.
void follow(const LogFiles& files, const DateTime& now, LogDesk& log) {
    // Without the simulator there is no folder for it; the log book itself stands already.
    (void)files::rewrite(files.exchange, [&](const Bytes& old) -> std::optional<Bytes> {
        if (old.empty() && log.LogEntries.empty()) return std::nullopt;
        return exchangeBytes(log.LogEntries, {});
    });
    (void)LoadLogBook(files, now, log);
}

} // namespace

std::error_code lookAtLog(const std::string& path, const Tables& tables, const LogDesk& log,
                          CareerDesk& career) {
    career = {};
    std::error_code error;
    const auto bytes = files::readAll(path, &error);
    if (!bytes) return error;
    career.table = readLogTable(asText(*bytes));
    LogNames names(tables);
    for (LogTable::Row& row : career.table.rows) {
        if (row.read) names.complete(row.entry);
    }
    career.found = compare(career.table, tables, log);
    return {};
}

std::string foundText(const LogImport& found) {
    if (!found.known) return "No log book: no header line with a date and two airports.";
    const auto noRoom =
        static_cast<std::size_t>(found.rows - found.duplicates - found.unread) - found.entries.size();
    std::string text = counted(found.entries.size(), " new flight", " new flights");
    if (found.duplicates > 0) text += ", " + std::to_string(found.duplicates) + " known already";
    if (found.unread > 0) text += ", " + std::to_string(found.unread) + " that cannot be read";
    if (noRoom > 0) text += ", " + std::to_string(noRoom) + " for which the log book has no room";
    if (found.cut) text += "; what stands behind row " + std::to_string(found.rows) + " was not read";
    return text + ".";
}

std::error_code takeLog(const LogFiles& files, const Tables& tables, const DateTime& now, LogDesk& log,
                        CareerDesk& career) {
    if (const auto error = LoadLogBook(files, now, log)) return error;
    career.found = compare(career.table, tables, log);
    const std::vector<LogRecord>& entries = career.found.entries;
    if (entries.empty()) return {};
    const KeptImport before = keptImport(files.book);
    auto error = keepImport(files.book, entries);
    if (!error) error = log.logStore.append(files.book, entries, daySerial(now), log.LogEntries);
    if (error) {
        putBackImport(files.book, before);
        return error;
    }
    log.LogEntries.insert(log.LogEntries.end(), entries.begin(), entries.end());
    follow(files, now, log);
    return {};
}

ImportUndo importUndo(const LogFiles& files, const LogDesk& log) {
    const std::vector<LogRecord> taken = importedEntries(files.book);
    const std::size_t left =
        taken.empty() ? log.LogEntries.size() : withoutImport(log.LogEntries, taken).size();
    const std::size_t out = log.LogEntries.size() - left;
    return {static_cast<int>(out), static_cast<int>(taken.size() - out)};
}

std::string undoneText(const ImportUndo& undo) {
    const std::string text =
        counted(static_cast<std::size_t>(undo.out), " flight was", " flights were") + " taken out again";
    if (undo.stay == 0) return text + ".";
    return text + "; " + std::to_string(undo.stay) + " had been changed or removed since.";
}

std::error_code undoImport(const LogFiles& files, const DateTime& now, LogDesk& log) {
    if (const auto error = LoadLogBook(files, now, log)) return error;
    const std::vector<LogRecord> left = withoutImport(log.LogEntries, importedEntries(files.book));
    if (left.size() < log.LogEntries.size()) {
        if (const auto error = log.logStore.rewrite(files.book, left, daySerial(now))) return error;
        log.LogEntries = left;
        follow(files, now, log);
    }
    // The book is as it should be; entries that are not in it any more do not come out twice.
    (void)forgetImport(files.book);
    return {};
}

} // namespace gatewise
