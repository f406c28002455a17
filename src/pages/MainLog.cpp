#include "pages/MainLog.h"

#include "logbook/LogListing.h"
#include "logbook/LogTexts.h"
#include "pages/MsgForm.h"
#include "pages/Pictures.h"
#include "plan/PrintPlan.h"
#include "platform/Files.h"
#include "work/LogWork.h"

namespace gatewise {

namespace {

LogFiles bookFiles(const Program& p) {
    return logFiles(p.session.AppDir, p.session.settings.FsPath);
}

void selectRow(Program& p, int row) {
    if (!selectLogRow(p.session.log, row)) return;
    auto& f = p.forms.MainForm;
    f.logButton(0).State = f.logButton(1).State = 1;
    RefreshLogButtons(p, "");
    for (int i = 0; i < kLogRows; ++i) f.dept_back(i).highlighted = i == row;
}

Waited openRow(Program& p, int row) {
    selectRow(p, row);
    return selectLogRow(p.session.log, row) ? editLogEntry(p) : waited(p);
}

void noEntryPicked(Program& p) {
    auto& f = p.forms.MainForm;
    f.logButton(0).State = f.logButton(1).State = 0;
    RefreshLogButtons(p, "");
}

/// The page buttons after a turn, with no row selected.
void resetLogButtons(Program& p) {
    auto& f = p.forms.MainForm;
    f.logButton(3).State = moreLogPages(p.session.log) ? 1 : 0;
    f.logButton(2).State = p.session.log.LogPage == 1 ? 0 : 1;
    noEntryPicked(p);
}

void turnLogPage(Program& p, int step) {
    LogDesk& log = p.session.log;
    log.LogPage = static_cast<std::int16_t>(log.LogPage + step);
    ShowLogPage(p);
    resetLogButtons(p);
}

} // namespace

void ShowLogPage(Program& p) {
    auto& f = p.forms.MainForm;
    const Session& s = p.session;
    f.curPage.text = std::to_string(s.log.LogPage);
    f.pageMAX.text = std::to_string(logPages(s.log.LastLogIndex()));
    const LogPageTexts page = logPageTexts(s.log.LogEntries, s.log.LogPage, s.locale.numbers);
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
    f.logEmpty_LABEL.visible = s.log.LogEntries.empty();
    f.log_pilotName.text = " " + s.settings.First + " " + s.settings.Last;
}

void showFirstLogPage(Program& p) {
    p.session.log.LogPage = 1;
    resetLogButtons(p);
    ShowLogPage(p);
}

Waited AddLogEntry(Program& p) {
    Session& s = p.session;
    return ShowMessage(p, AddLogEntry(bookFiles(p), s.schedule, s.dispatch, p.machine.clock.now(), s.log));
}

Waited DeleteLogEntry(Program& p) {
    LogDesk& log = p.session.log;
    if (log.selected() == nullptr) return waited(p);
    if (const auto notice = DeleteLogEntry(bookFiles(p), p.machine.clock.now(), log)) {
        // The question is answered; what went wrong is a message of its own.
        hideScreen(p, p.forms.MsgForm);
        return ShowMessage(p, *notice);
    }
    if (ShowMessage(p, Heading::Warning, Message::DeleteLogEntry) == Waited::Ended) return Waited::Ended;
    (void)LoadLogBook(bookFiles(p), p.machine.clock.now(), log);
    ShowLogPage(p);
    return Waited::Answered;
}

Waited askToDelete(Program& p) {
    if (ShowMessage(p, Heading::Warning, Message::DeleteLogEntry) == Waited::Ended) return Waited::Ended;
    noEntryPicked(p);
    return Waited::Answered;
}

Waited undoDeletion(Program& p) {
    LogDesk& log = p.session.log;
    if (const auto notice = undoDeletion(bookFiles(p), p.machine.clock.now(), log))
        return ShowMessage(p, *notice);
    resetLogButtons(p);
    ShowLogPage(p);
    return waited(p);
}

Waited exportLogBook(Program& p) {
    const auto path = p.machine.desktop.askSavePath("Export Log Book", p.session.appPath("\\LogBook.csv"));
    if (!path || waited(p) == Waited::Ended) return waited(p);
    if (const auto error = files::replace(*path, logCsv(p.session.log.LogEntries)))
        return ShowMessage(p, failure(error, "ExportLogBook"));
    p.machine.desktop.notifyFile("The Log Book has been exported to " + *path, *path);
    return waited(p);
}

Waited printLogPage(Program& p) {
    const LogDesk& log = p.session.log;
    const std::string text = logListing(log.LogEntries, log.LogPage, p.forms.MainForm.log_pilotName.text,
                                        p.session.locale.numbers);
    const auto error = p.machine.printer.print(std::string(kPrintFont), kPrintFontSize, text, {});
    return error ? ShowMessage(p, failure(error, "PrintLogPage")) : waited(p);
}

void previousLogPage(Program& p) {
    turnLogPage(p, p.session.log.LogPage > 1 ? -1 : 0);
}

void nextLogPage(Program& p) {
    turnLogPage(p, moreLogPages(p.session.log) ? 1 : 0);
}

Waited editLogEntry(Program& p) {
    LogDesk& log = p.session.log;
    const LogRecord* entry = log.selected();
    if (entry == nullptr) return waited(p);
    log.LogWorkingCopy = *entry;
    return showModal(p, p.forms.LogEntry);
}

Waited saveEditedEntry(Program& p) {
    LogDesk& log = p.session.log;
    if (LogRecord* entry = log.selected())
        entry->comments = std::string(trimmed(p.forms.LogEntry.notes.text));
    // Nothing of the entry is lost while its screen stands.
    if (const auto notice = SaveLogEntry(bookFiles(p), p.machine.clock.now(), log))
        return ShowMessage(p, *notice);
    hideScreen(p, p.forms.LogEntry);
    noEntryPicked(p);
    ShowLogPage(p);
    return ShowMessage(p, Heading::Information, Message::LogEntrySaved);
}

void closeLogEntry(Program& p) {
    noEntryPicked(p);
    LogDesk& log = p.session.log;
    if (LogRecord* entry = log.selected()) *entry = log.LogWorkingCopy;
    hideScreen(p, p.forms.LogEntry);
    ShowLogPage(p);
}

void bindMainLog(Program& p) {
    auto& f = p.forms.MainForm;
    for (int i = 0; i < kLogRows; ++i) {
        f.log_press(i).on(Event::Click, [&p, i] { selectRow(p, i); });
        const auto open = [&p, i] { return openRow(p, i); };
        f.log_press(i).on(Event::DoubleClick, open);
        f.log_press(i).on(Event::Enter, open);
    }
}

} // namespace gatewise
