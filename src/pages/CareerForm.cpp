#include "pages/CareerForm.h"

#include "career/CareerPictures.h"
#include "pages/MainLog.h"
#include "pages/Maps.h"
#include "pages/MsgForm.h"
#include "pages/Pictures.h"
#include "pages/Placement.h"
#include "plan/PrintPlan.h"
#include "work/ImportLog.h"

namespace gatewise {

namespace {

constexpr const char* kAll = "All";

LogFiles bookFiles(const Program& p) {
    return logFiles(p.session.AppDir, p.session.settings.FsPath);
}

std::string chosenName(const Combo& combo) {
    return combo.picked > 0 ? combo.text() : std::string();
}

Career career(const Program& p) {
    const auto& f = p.forms.CareerForm;
    return careerOf(p.session.log.LogEntries, p.session.schedule.tables,
                    {f.yearCOMBO.data(), chosenName(f.aircraftCOMBO), chosenName(f.airlineCOMBO)});
}

void fillCareer(Program& p) {
    auto& f = p.forms.CareerForm;
    const Career flown = career(p);
    f.totals.clear();
    for (const auto& [name, value] : careerRows(flown, p.session.locale.numbers))
        f.totals.rows.push_back({{}, {" " + name, value}, false});
    f.bars.drawing = careerBars(flown);
    f.map.chosen = -1;
    setScene(f.map, careerScene(flown, shownLand(p)));
    f.hover_LABEL.text = f.map.scene.summary;
    f.takeButton.enabled = !p.session.career.found.entries.empty();
    f.undoButton.enabled = canUndoImport(p.session.log, p.session.career);
}

/// Filled without a click on it: the first item stands for all.
void fillCombo(Combo& combo, const std::vector<std::string>& names) {
    combo.clear();
    combo.add(kAll);
    for (const auto& name : names) combo.add(name);
    combo.picked = 0;
}

void fillChoices(Program& p) {
    auto& f = p.forms.CareerForm;
    const CareerChoices choices = careerChoices(p.session.log.LogEntries);
    fillCombo(f.yearCOMBO, {});
    for (const int year : choices.years) f.yearCOMBO.add(std::to_string(year), year);
    fillCombo(f.aircraftCOMBO, choices.aircraft);
    fillCombo(f.airlineCOMBO, choices.airlines);
}

/// The log book was changed from here: its page and this screen follow.
void follow(Program& p) {
    fillChoices(p);
    fillCareer(p);
    p.session.log.LogPage = 1;
    ShowLogPage(p);
}

Waited look(Program& p) {
    auto& f = p.forms.CareerForm;
    const auto error = lookAtLog(std::string(trimmed(f.sourceTEXT.text)), p.session.log, p.session.career);
    f.preview_LABEL.text = error ? "" : foundText(p.session.career.found);
    f.takeButton.enabled = !p.session.career.found.entries.empty();
    return error ? ShowMessage(p, failure(error, "lookAtLog")) : waited(p);
}

Waited takeOver(Program& p) {
    auto& f = p.forms.CareerForm;
    const auto error = takeLog(bookFiles(p), p.machine.clock.now(), p.session.log, p.session.career);
    if (error) return ShowMessage(p, failure(error, "takeLog"));
    f.preview_LABEL.text = std::to_string(p.session.career.taken) + " flights were taken over.";
    follow(p);
    return waited(p);
}

Waited undo(Program& p) {
    auto& f = p.forms.CareerForm;
    const auto error = undoImport(bookFiles(p), p.machine.clock.now(), p.session.log, p.session.career);
    if (error) return ShowMessage(p, failure(error, "undoImport"));
    f.preview_LABEL.text = "The log book is as it was before.";
    follow(p);
    return waited(p);
}

} // namespace

void showCareer(Program& p) {
    fillChoices(p);
    fillCareer(p);
    showScreen(p, p.forms.CareerForm);
}

void copyCareer(Program& p) {
    p.machine.desktop.copy(careerText(careerRows(career(p), p.session.locale.numbers)));
}

Waited printCareer(Program& p) {
    const Career flown = career(p);
    std::string text = "CAREER" + p.forms.MainForm.log_pilotName.text + "\n\n";
    for (const auto& [name, value] : careerRows(flown, p.session.locale.numbers))
        text += name + std::string(name.size() < 24 ? 24 - name.size() : 1, ' ') + value + "\n";
    const auto& f = p.forms.CareerForm;
    const auto error = p.machine.printer.print(std::string(kPrintFont), kPrintFontSize, text,
                                               {f.bars.drawing, f.map.drawing});
    return error ? ShowMessage(p, failure(error, "printCareer")) : waited(p);
}

void bindCareerForm(Program& p) {
    auto& f = p.forms.CareerForm;
    f.load = [&p] {
        placeScreen(p, p.forms.CareerForm);
        for (int i = 0; i < 2; ++i) p.forms.CareerForm.totals.resetColumn(i);
    };
    f.activate = [&p] { CenterOnMain(p, p.forms.CareerForm); };
    for (Combo* combo : {&f.yearCOMBO, &f.aircraftCOMBO, &f.airlineCOMBO})
        combo->on(Event::Click, [&p] { fillCareer(p); });
    f.totals.on(Event::Column, [&f](const EventArgs& args) { f.totals.resetColumn(args.value); });
    f.importButton.on(Event::Click, [&p] { return look(p); });
    f.takeButton.on(Event::Click, [&p] { return takeOver(p); });
    f.undoButton.on(Event::Click, [&p] { return undo(p); });
    f.BG.on(Event::Move, [&f] { restorePictures(f); });
}

} // namespace gatewise
