#include "work/ImportLog.h"

#include "logbook/LogExchange.h"
#include "platform/Files.h"

namespace gatewise {

namespace {

std::string keptPath(const std::string& book) {
    const auto dot = book.rfind('.');
    return book.substr(0, dot) + ".before-import";
}

/// Writes the book anew and brings what follows from it up to date.
std::error_code write(const LogFiles& files, const DateTime& now, std::vector<LogRecord> entries,
                      LogDesk& log) {
    if (const auto error = log.logStore.rewrite(files.book, entries, daySerial(now))) return error;
    WriteLogRecords(files.exchange, entries);
    return LoadLogBook(files, now, log);
}

std::string counted(int count, const char* one, const char* many) {
    return std::to_string(count) + (count == 1 ? one : many);
}

} // namespace

std::error_code lookAtLog(const std::string& path, const LogDesk& log, CareerDesk& career) {
    career.found = {};
    std::error_code error;
    const auto bytes = files::readAll(path, &error);
    if (!bytes) return error;
    career.found = importLog(asText(*bytes), log.LogEntries);
    return {};
}

std::string foundText(const LogImport& found) {
    if (!found.known) return "No log book: no header line with a date and two airports.";
    std::string text = counted(static_cast<int>(found.entries.size()), " new flight", " new flights");
    if (found.duplicates > 0) text += ", " + std::to_string(found.duplicates) + " known already";
    if (found.unread > 0) text += ", " + std::to_string(found.unread) + " that cannot be read";
    if (found.full) text += ", the log book is full";
    return text + ".";
}

std::error_code takeLog(const LogFiles& files, const DateTime& now, LogDesk& log, CareerDesk& career) {
    if (career.found.entries.empty()) return {};
    if (const auto old = files::readAll(files.book)) {
        if (const auto error = files::replace(keptPath(files.book), *old)) return error;
    }
    const std::size_t before = log.LogEntries.size();
    std::vector<LogRecord> all = log.LogEntries;
    all.insert(all.end(), career.found.entries.begin(), career.found.entries.end());
    if (const auto error = write(files, now, std::move(all), log)) return error;
    career.before = before;
    career.taken = career.found.entries.size();
    career.found = {};
    return {};
}

bool canUndoImport(const LogDesk& log, const CareerDesk& career) {
    return career.taken > 0 && log.LogEntries.size() == career.before + career.taken;
}

std::error_code undoImport(const LogFiles& files, const DateTime& now, LogDesk& log, CareerDesk& career) {
    if (!canUndoImport(log, career)) return {};
    std::vector<LogRecord> left(log.LogEntries.begin(),
                                log.LogEntries.begin() + static_cast<std::ptrdiff_t>(career.before));
    if (const auto error = write(files, now, std::move(left), log)) return error;
    career.taken = 0;
    return {};
}

} // namespace gatewise
