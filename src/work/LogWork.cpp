#include "work/LogWork.h"

#include "logbook/LogExchange.h"
#include "logbook/LogListing.h"
#include "logbook/LogTexts.h"
#include "schedule/Lookups.h"
#include "work/Notices.h"

#include <algorithm>
#include <utility>

namespace gatewise {

namespace {

LogRecord newEntry(const Schedule& schedule, const Dispatch& dispatch, const DateTime& now) {
    const FlightRecord& flight = dispatch.CurrentFlight;
    const AirportRecord& departure = schedule.tables.airport(dispatch.DepartureIndex);
    const AirportRecord& arrival = schedule.tables.airport(dispatch.DestinationIndex);
    LogRecord entry;
    entry.date = static_cast<double>(daySerial(now));
    entry.departureIcao = departure.Icao;
    entry.arrivalIcao = arrival.Icao;
    entry.departureName = departure.Name;
    entry.arrivalName = arrival.Name;
    entry.aircraft = find_aircraft(schedule.tables, flight.AircraftCode.view());
    entry.scheduledDeparture = entry.actualDeparture = flight.DepartureTime;
    entry.scheduledArrival = entry.actualArrival = flight.ArrivalTime;
    entry.airline = find_airline(schedule.tables, flight.AirlineCode.view());
    entry.flightNumber = flight.FlightNumber;
    entry.comments = "Currently, no comments for this flight.";
    return entry;
}

/// An entry for a book that could not be read, and what the pilot is told of it.
Notice keepEntry(const LogFiles& files, const LogRecord& entry, const std::error_code& doubt, LogDesk& log) {
    log.LogEntries.push_back(entry);
    const auto error = LogStore::keepBeside(files.book, entry);
    if (error) log.unkept.push_back(entry);
    return failure(error ? error : doubt, "AddLogEntry");
}

/// Files what no file took so far, behind the entries that were read. What is refused again stays in view.
void fileUnkept(const LogFiles& files, const DateTime& now, LogDesk& log) {
    const std::vector<LogRecord> waiting = std::exchange(log.unkept, {});
    for (const LogRecord& entry : waiting) {
        if (log.logStore.add(files.book, entry, daySerial(now), log.LogEntries)) log.unkept.push_back(entry);
        log.LogEntries.push_back(entry);
    }
}

constexpr ClockField kFields[] = {
    {"dept", "Set Deptarture Time", &LogRecord::actualDeparture, nullptr},
    {"arr", "Set Arrival Time", &LogRecord::actualArrival, nullptr},
    {"day", "Set Day Hours", nullptr, &LogRecord::dayHours},
    {"night", "Set Night Hours", nullptr, &LogRecord::nightHours},
    {"inst", "Set Instrument Hours", nullptr, &LogRecord::instrumentHours},
};

} // namespace

LogFiles logFiles(const std::string& AppDir, const std::string& FsPath) {
    return {AppDir + "\\Data\\LogBook.gt1", FsPath + "\\Modules\\logrecords.gt1"};
}

std::error_code LoadLogBook(const LogFiles& files, const DateTime& now, LogDesk& log) {
    const auto error = log.logStore.load(files.book, daySerial(now), log.LogEntries);
    if (error) return error;
    fileUnkept(files, now, log);
    MergeLogRecords(files.exchange, log.LogEntries);
    return {};
}

Notice AddLogEntry(const LogFiles& files, const Schedule& schedule, const Dispatch& dispatch,
                   const DateTime& now, LogDesk& log) {
    // A book that could not be read may be readable by now.
    if (log.logStore.doubt()) (void)LoadLogBook(files, now, log);
    if (log.LogEntries.size() >= kLogEntries) return tableFull("AddLogEntry");
    const LogRecord entry = newEntry(schedule, dispatch, now);
    if (const auto doubt = log.logStore.doubt()) return keepEntry(files, entry, doubt, log);
    if (const auto error = log.logStore.add(files.book, entry, daySerial(now), log.LogEntries))
        return failure(error, "AddLogEntry");
    // It stands, whether or not the file can be read back.
    log.LogEntries.push_back(entry);
    (void)LoadLogBook(files, now, log);
    WriteLogRecords(files.exchange, log.LogEntries);
    return inform(Message::LogEntryMade);
}

std::optional<Notice> SaveLogEntry(const LogFiles& files, const DateTime& now, LogDesk& log) {
    LogRecord* entry = log.selected();
    if (entry == nullptr) return std::nullopt;
    entry->comments = std::string(entry->comments.trimmed());
    const auto index = static_cast<std::size_t>(log.LogSelected);
    if (const auto error = log.logStore.put(files.book, index, *entry, daySerial(now), log.LogEntries))
        return failure(error, "SaveLogEntry");
    WriteLogRecords(files.exchange, log.LogEntries);
    return std::nullopt;
}

std::optional<Notice> DeleteLogEntry(const LogFiles& files, const DateTime& now, LogDesk& log) {
    std::vector<LogRecord> left = log.LogEntries;
    left.erase(left.begin() + log.LogSelected);
    if (const auto error = log.logStore.rewrite(files.book, left, daySerial(now)))
        return failure(error, "DeleteLogEntry");
    WriteLogRecords(files.exchange, left);
    const auto index = static_cast<std::size_t>(log.LogSelected);
    log.deleted.push_back({index, log.LogEntries[index]});
    return std::nullopt;
}

std::optional<Notice> undoDeletion(const LogFiles& files, const DateTime& now, LogDesk& log) {
    if (log.deleted.empty()) return std::nullopt;
    if (log.LogEntries.size() >= kLogEntries) return tableFull("undoDeletion");
    const DeletedEntry& last = log.deleted.back();
    std::vector<LogRecord> whole = log.LogEntries;
    const auto at = static_cast<std::ptrdiff_t>(std::min(last.index, whole.size()));
    whole.insert(whole.begin() + at, last.entry);
    if (const auto error = log.logStore.rewrite(files.book, whole, daySerial(now)))
        return failure(error, "undoDeletion");
    WriteLogRecords(files.exchange, whole);
    log.LogEntries = std::move(whole);
    log.deleted.pop_back();
    return std::nullopt;
}

bool selectLogRow(LogDesk& log, int row) {
    const int entry = (log.LogPage - 1) * kLogRows + row;
    if (entry > log.LastLogIndex()) return false;
    log.LogSelected = static_cast<std::int16_t>(entry);
    return true;
}

bool moreLogPages(const LogDesk& log) {
    return log.LogPage * kLogRows <= log.LastLogIndex();
}

const ClockField* clockField(const LogDesk& log) {
    for (const auto& field : kFields) {
        if (log.LogField == field.word) return &field;
    }
    return nullptr;
}

ClockFieldTexts clockFieldTexts(const ClockField& field, const LogRecord& entry,
                                const NumberLocale& numbers) {
    if (field.time != nullptr) {
        const std::string text = formatInteger("0000", entry.*field.time);
        return {text.substr(0, 2), text.substr(text.size() - 2)};
    }
    const std::string text = numbers.formatSingle("00.0", entry.*field.hours);
    return {text.substr(0, 2), text.empty() ? text : text.substr(text.size() - 1)};
}

void stepLogField(const ClockField& field, std::string_view type, LogRecord& entry) {
    if (field.time != nullptr)
        entry.*field.time = stepTime(entry.*field.time, type);
    else
        entry.*field.hours = stepHours(entry.*field.hours, type);
}

} // namespace gatewise
