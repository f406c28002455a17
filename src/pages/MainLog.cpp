#include "pages/MainLog.h"

#include "logbook/LogExchange.h"
#include "logbook/LogListing.h"
#include "logbook/LogTexts.h"
#include "pages/LogEntry.h"
#include "pages/MsgForm.h"
#include "pages/Pictures.h"
#include "pages/Screens.h"
#include "plan/PrintPlan.h"
#include "platform/Files.h"
#include "schedule/Lookups.h"

namespace gatewise {

namespace {

std::string bookPath(const Program& p) {
    return p.appPath("\\Data\\LogBook.gt1");
}
std::string exchangePath(const Program& p) {
    return p.g.FsPath + "\\Modules\\logrecords.gt1";
}

/// Says what kept the log book from being written; true when something did.
bool failed(Program& p, const std::error_code& error, const char* function) {
    if (!error) return false;
    ShowFailure(p, error, function);
    return true;
}

LogRecord newEntry(const Program& p) {
    const FlightRecord& flight = p.g.CurrentFlight;
    const AirportRecord& departure = p.g.tables.airport(p.g.DepartureIndex);
    const AirportRecord& arrival = p.g.tables.airport(p.g.DestinationIndex);
    LogRecord entry;
    entry.date = static_cast<double>(daySerial(p.machine.clock.now()));
    entry.departureIcao = departure.Icao;
    entry.arrivalIcao = arrival.Icao;
    entry.departureName = departure.Name;
    entry.arrivalName = arrival.Name;
    entry.aircraft = find_aircraft(p.g.tables, flight.AircraftCode.view());
    entry.scheduledDeparture = entry.actualDeparture = flight.DepartureTime;
    entry.scheduledArrival = entry.actualArrival = flight.ArrivalTime;
    entry.airline = find_airline(p.g.tables, flight.AirlineCode.view());
    entry.flightNumber = flight.FlightNumber;
    entry.comments = "Currently, no comments for this flight.";
    return entry;
}

void selectRow(Program& p, int row) {
    const int entry = (p.g.LogPage - 1) * kLogRows + row;
    if (entry > p.g.LastLogIndex()) return;
    auto& f = p.forms.MainForm;
    p.g.LogSelected = static_cast<std::int16_t>(entry);
    f.logButton(0).State = f.logButton(1).State = 1;
    RefreshLogButtons(p, "");
    for (int i = 0; i < kLogRows; ++i) f.dept_back(i).highlighted = i == row;
}

void turnLogPage(Program& p, int step) {
    p.g.LogPage = static_cast<std::int16_t>(p.g.LogPage + step);
    ShowLogPage(p);
    resetLogButtons(p);
}

bool morePages(const Program& p) {
    return p.g.LogPage * kLogRows <= p.g.LastLogIndex();
}

void noEntryPicked(Program& p) {
    auto& f = p.forms.MainForm;
    f.logButton(0).State = f.logButton(1).State = 0;
    RefreshLogButtons(p, "");
}

} // namespace

void LoadLogBook(Program& p) {
    p.g.LogEntries = readLogBook(bookPath(p));
    p.g.logStore.remember(static_cast<long long>(p.g.LogEntries.size()) *
                          static_cast<long long>(recordSize<LogRecord>()));
    MergeLogRecords(exchangePath(p), p.g.LogEntries);
}

void AddLogEntry(Program& p) {
    const std::size_t index = p.g.LogEntries.size();
    if (index >= kLogEntries) {
        ShowFailure(p, kSubscriptOutOfRange, "Subscript out of range", "AddLogEntry");
        return;
    }
    const long long today = daySerial(p.machine.clock.now());
    if (failed(p, p.g.logStore.put(bookPath(p), index, newEntry(p), today, p.g.LogEntries), "AddLogEntry"))
        return;
    LoadLogBook(p);
    WriteLogRecords(exchangePath(p), p.g.LogEntries);
    ShowMessage(p, kInformation, 2);
}

bool SaveLogEntry(Program& p) {
    LogRecord* entry = selectedEntry(p);
    if (entry == nullptr) return true;
    entry->comments = std::string(entry->comments.trimmed());
    const long long today = daySerial(p.machine.clock.now());
    const auto index = static_cast<std::size_t>(p.g.LogSelected);
    if (failed(p, p.g.logStore.put(bookPath(p), index, *entry, today, p.g.LogEntries), "SaveLogEntry"))
        return false;
    WriteLogRecords(exchangePath(p), p.g.LogEntries);
    return true;
}

void DeleteLogEntry(Program& p) {
    if (selectedEntry(p) == nullptr) return;
    std::vector<LogRecord> left = p.g.LogEntries;
    left.erase(left.begin() + p.g.LogSelected);
    const long long today = daySerial(p.machine.clock.now());
    if (const auto error = p.g.logStore.rewrite(bookPath(p), left, today)) {
        // The question is answered; what went wrong is a message of its own.
        hideScreen(p, p.forms.MsgForm);
        failed(p, error, "DeleteLogEntry");
        return;
    }
    WriteLogRecords(exchangePath(p), left);
    ShowMessage(p, kWarning, 3);
    LoadLogBook(p);
    ShowLogPage(p);
}

void ShowLogPage(Program& p) {
    auto& f = p.forms.MainForm;
    f.curPage.text = std::to_string(p.g.LogPage);
    f.pageMAX.text = std::to_string(logPages(p.g.LastLogIndex()));
    const LogPageTexts page = logPageTexts(p.g.LogEntries, p.g.LogPage, p.g.numbers);
    for (int i = 0; i < kLogRows; ++i) {
        const LogRowTexts& row = page.rows[static_cast<std::size_t>(i)];
        f.log_dept(i).text = row.departure;
        f.log_arr(i).text = row.arrival;
        f.pic_notes(i).text = row.notes;
        f.log_instline(i).text = row.instrument;
        f.log_picline(i).text = row.pilot;
        f.dept_back(i).highlighted = false;
    }
    f.pic_pageinst.text = page.pageInstrument;
    f.pic_pagepic.text = page.pagePilot;
    f.pic_previnst.text = page.previousInstrument;
    f.pic_prevpic.text = page.previousPilot;
    f.pic_totinst.text = page.totalInstrument;
    f.pic_totpic.text = page.totalPilot;
    const auto& s = p.forms.SettingsForm;
    f.log_pilotName.text = " " + s.firstTEXT.text + " " + s.lastTEXT.text;
}

void resetLogButtons(Program& p) {
    auto& f = p.forms.MainForm;
    f.logButton(0).State = f.logButton(1).State = 0;
    f.logButton(3).State = morePages(p) ? 1 : 0;
    f.logButton(2).State = p.g.LogPage == 1 ? 0 : 1;
    RefreshLogButtons(p, "");
}

void exportLogBook(Program& p) {
    const auto path = p.machine.desktop.askSavePath("Export Log Book", p.appPath("\\LogBook.csv"));
    if (!path || failed(p, files::replace(*path, logCsv(p.g.LogEntries)), "ExportLogBook")) return;
    p.machine.desktop.notify("The Log Book has been exported to " + *path);
}

void printLogPage(Program& p) {
    const std::string text =
        logListing(p.g.LogEntries, p.g.LogPage, p.forms.MainForm.log_pilotName.text, p.g.numbers);
    failed(p, p.machine.printer.print(std::string(kPrintFont), kPrintFontSize, text, {}), "PrintLogPage");
}

void previousLogPage(Program& p) {
    turnLogPage(p, p.g.LogPage > 1 ? -1 : 0);
}

void nextLogPage(Program& p) {
    turnLogPage(p, morePages(p) ? 1 : 0);
}

void editLogEntry(Program& p) {
    const LogRecord* entry = selectedEntry(p);
    if (entry == nullptr) return;
    p.g.LogWorkingCopy = *entry;
    showModal(p, p.forms.LogEntry);
}

void saveEditedEntry(Program& p) {
    if (LogRecord* entry = selectedEntry(p))
        entry->comments = std::string(trimmed(p.forms.LogEntry.notes.text));
    if (!SaveLogEntry(p)) return; // nothing of the entry is lost while its screen stands
    hideScreen(p, p.forms.LogEntry);
    noEntryPicked(p);
    ShowLogPage(p);
    ShowMessage(p, kInformation, 6);
}

void closeLogEntry(Program& p) {
    noEntryPicked(p);
    if (LogRecord* entry = selectedEntry(p)) *entry = p.g.LogWorkingCopy;
    hideScreen(p, p.forms.LogEntry);
    ShowLogPage(p);
}

void askToDelete(Program& p) {
    ShowMessage(p, kWarning, 3);
    if (!p.ending) noEntryPicked(p);
}

void bindMainLog(Program& p) {
    auto& f = p.forms.MainForm;
    for (int i = 0; i < kLogRows; ++i) {
        f.log_press(i).on(Event::Click, [&p, i] { selectRow(p, i); });
        const auto open = [&p, i] {
            selectRow(p, i);
            if ((p.g.LogPage - 1) * kLogRows + i <= p.g.LastLogIndex()) editLogEntry(p);
        };
        f.log_press(i).on(Event::DoubleClick, open);
        f.log_press(i).on(Event::Enter, open);
    }
}

} // namespace gatewise
