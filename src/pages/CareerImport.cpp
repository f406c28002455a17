#include "pages/CareerImport.h"

#include "logbook/LogListing.h"
#include "logbook/LogTexts.h"
#include "pages/CareerView.h"
#include "pages/MainLog.h"
#include "pages/MsgForm.h"
#include "work/ImportLog.h"

namespace gatewise {

namespace {

LogFiles logBookFiles(const Program& p) {
    return logFiles(p.session.AppDir, p.session.settings.FsPath);
}

const char* nameOf(Fate fate) {
    switch (fate) {
    case Fate::New:
        return "new";
    case Fate::Known:
        return "known already";
    case Fate::Unread:
        return "cannot be read";
    case Fate::NoRoom:
        return "no room";
    }
    return "";
}

ListView::Row previewRow(const LogImport::Row& row, const NumberLocale& numbers) {
    const LogRecord& e = row.entry;
    if (row.fate == Fate::Unread)
        return {{}, {std::to_string(row.number), "", "", "", "", "", "", nameOf(row.fate)}, false};
    const auto place = [](const FixedText<4>& icao, const FixedText<35>& name) {
        return std::string(icao.trimmed().empty() ? name.trimmed() : icao.trimmed());
    };
    std::string flight(e.airline.trimmed());
    if (e.flightNumber > 0) flight += (flight.empty() ? "" : " ") + std::to_string(e.flightNumber);
    const double hours = static_cast<double>(e.dayHours) + static_cast<double>(e.nightHours);
    return {{},
            {std::to_string(row.number), isoDate(e.date), place(e.departureIcao, e.departureName),
             place(e.arrivalIcao, e.arrivalName), flight, std::string(e.aircraft.trimmed()),
             hoursText(hours, numbers), nameOf(row.fate)},
            row.fate == Fate::New};
}

/// Either what was flown or the log book that is looked at.
void showPreview(forms::CareerForm& f, bool preview) {
    f.preview_pic.visible = f.cancelButton.enabled = preview;
    f.flown_pic.visible = !preview;
    for (Control* control :
         std::initializer_list<Control*>{&f.yearCOMBO, &f.aircraftCOMBO, &f.airlineCOMBO, &f.copyButton,
                                         &f.pngButton, &f.pdfButton, &f.printButton})
        control->enabled = !preview;
    if (!preview) f.takeButton.enabled = false;
}

void dropPreview(Program& p) {
    p.session.career = {};
    p.forms.CareerForm.previewList.clear();
    showPreview(p.forms.CareerForm, false);
}

Waited look(Program& p) {
    auto& f = p.forms.CareerForm;
    if (trimmed(f.sourceTEXT.text).empty()) {
        const auto asked =
            p.machine.desktop.askOpenPath("Log book of another program", p.session.appPath("\\LogBook.csv"));
        if (!asked || waited(p) == Waited::Ended) return waited(p);
        f.sourceTEXT.text = *asked;
    }
    dropPreview(p);
    f.preview_LABEL.text = "";
    CareerDesk& desk = p.session.career;
    const auto error =
        lookAtLog(std::string(trimmed(f.sourceTEXT.text)), p.session.schedule.tables, p.session.log, desk);
    if (error) return ShowMessage(p, failure(error, "ImportLog"));
    f.preview_LABEL.text = foundText(desk.found);
    if (desk.found.rows == 0) return waited(p);
    for (const LogImport::Row& row : desk.found.list)
        f.previewList.rows.push_back(previewRow(row, p.session.locale.numbers));
    showPreview(f, true);
    f.takeButton.enabled = !desk.found.entries.empty();
    return waited(p);
}

/// The log book was changed from here: its page and this screen follow.
void follow(Program& p, const std::string& told) {
    refreshCareer(p);
    resetCareerImport(p);
    p.forms.CareerForm.preview_LABEL.text = told;
    showFirstLogPage(p);
}

Waited takeOver(Program& p) {
    if (!p.forms.CareerForm.takeButton.enabled) return waited(p);
    CareerDesk& desk = p.session.career;
    if (const auto error =
            takeLog(logBookFiles(p), p.session.schedule.tables, p.machine.clock.now(), p.session.log, desk))
        return ShowMessage(p, failure(error, "ImportLog"));
    const auto taken = desk.found.entries.size();
    follow(p, std::to_string(taken) + (taken == 1 ? " flight was" : " flights were") + " taken over.");
    return waited(p);
}

Waited undo(Program& p) {
    if (!p.forms.CareerForm.undoButton.enabled) return waited(p);
    const ImportUndo done = importUndo(logBookFiles(p), p.session.log);
    if (const auto error = undoImport(logBookFiles(p), p.machine.clock.now(), p.session.log))
        return ShowMessage(p, failure(error, "UndoImport"));
    follow(p, undoneText(done));
    return waited(p);
}

} // namespace

void resetCareerImport(Program& p) {
    dropPreview(p);
    auto& f = p.forms.CareerForm;
    f.preview_LABEL.text = "";
    f.undoButton.enabled = importUndo(logBookFiles(p), p.session.log).out > 0;
}

void bindCareerImport(Program& p) {
    auto& f = p.forms.CareerForm;
    f.sourceTEXT.on(Event::Enter, [&p] { return look(p); });
    f.importButton.on(Event::Click, [&p] { return look(p); });
    f.takeButton.on(Event::Click, [&p] { return takeOver(p); });
    f.cancelButton.on(Event::Click, [&p] { resetCareerImport(p); });
    f.undoButton.on(Event::Click, [&p] { return undo(p); });
}

} // namespace gatewise
