#include "input/ShortCuts.h"

#include "input/UserEvents.h"
#include "pages/CopyTexts.h"
#include "pages/MainLog.h"
#include "pages/OptionsForm.h"
#include "pages/SaveSettings.h"
#include "pages/ViewPlan.h"

namespace gatewise {

namespace {

constexpr int kAllPages = 10'000; // more than any board has

const Screen* front(const Program& p) {
    return p.forms.front.empty() ? nullptr : p.forms.front.front();
}

bool press(Control& key) {
    if (!key.usable()) return false;
    user::click(key);
    return true;
}

bool helpHere(Program& p) {
    p.machine.desktop.showHelp(p.session.appPath("\\GThelp.chm::/" + helpPageOf(p)));
    return true;
}

bool copy(Program& p) {
    const std::string text = front(p) != nullptr ? copyText(p.forms, *front(p)) : std::string();
    if (!text.empty()) p.machine.desktop.copy(text);
    return !text.empty();
}

bool print(Program& p) {
    auto& f = p.forms;
    if (front(p) == &f.ViewPlan) return press(f.ViewPlan.printButton);
    if (front(p) != &f.MainForm) return false;
    return press(f.MainForm.log_pic.visible ? static_cast<Control&>(f.MainForm.logprintButton)
                                            : f.MainForm.FlatButton(0));
}

bool undo(Program& p) {
    if (front(p) == &p.forms.ViewPlan && !p.session.plan.before.empty()) {
        undoRemoval(p);
        return true;
    }
    const auto& main = p.forms.MainForm;
    if (front(p) != &main || !main.log_pic.visible || p.session.log.deleted.empty()) return false;
    return undoDeletion(p) == Waited::Answered;
}

bool now(Program& p) {
    return front(p) == &p.forms.MainForm && press(p.forms.MainForm.nowButton);
}

bool mute(Program& p) {
    Settings& s = p.session.settings;
    p.forms.OptionsForm.muteCHECK.set(s.Muted == 1 ? 0 : 1);
    saveSettings(p);
    p.machine.desktop.notify(s.Muted == 1 ? "All sounds are muted. Ctrl+M brings them back."
                                          : "Sounds are heard again.");
    return true;
}

template<int Pages> bool turn(Program& p) {
    auto& f = p.forms.MainForm;
    if (front(p) != &f || !f.status_pic.visible) return false;
    user::turn(f.status_pic, Pages);
    return true;
}

constexpr ShortCut kShortCuts[] = {
    {"F1", "Everywhere", "Opens the help page of the screen in front.", helpHere},
    {"Alt", "Everywhere",
     "While it is held, each key and field shows a letter. That letter presses or enters it."},
    {"Tab", "Everywhere", "Next control, with Shift the previous one. The one in force has a cyan ring."},
    {"Return", "Everywhere",
     "Presses the key in force. In a search field it starts the search, in a list it takes the marked line."},
    {"Esc", "Everywhere", "Presses the close key of the screen in front."},
    {"Ctrl+M", "Everywhere", "Mutes all sounds, or brings them back.", mute},
    {"Ctrl+Wheel", "Everywhere", "Makes all windows larger and smaller, as Ctrl with plus and minus do."},
    {"Ctrl+0", "Everywhere", "All windows in their own size, 100 per cent."},
    {"Wheel", "Status board", "Turns the pages."},
    {"PgUp", "Status board", "The page before.", turn<-1>},
    {"PgDown", "Status board", "The next page.", turn<1>},
    {"Home", "Status board", "The first page.", turn<-kAllPages>},
    {"End", "Status board", "The last page.", turn<kAllPages>},
    {"Ctrl+T", "Main window", "Sets a shifted clock back to the time of this computer.", now},
    {"Ctrl+C", "Main window, lists",
     "Copies the boarding pass, the page of the board as a table, or the marked line of a list. In a field "
     "with a marked text it copies that.",
     copy},
    {"Ctrl+P", "Boarding pass, log book, flight plan", "Prints what is shown.", print},
    {"Ctrl+Z", "Flight plan, log book",
     "Brings the removed point or the deleted entry back, the latest first, until the program ends.", undo},
    {"A to Z", "Airport and airline lists",
     "Typing narrows the list to the lines with these letters; Backspace takes one back, Esc shows all "
     "lines."},
    {"Space", "Everywhere", "Ticks a box. In the list of flights it shows all about the marked flight."},
    {"Up", "Everywhere", "Moves in lists and choices, as Down does."},
    {"Left", "Fly options", "Moves the fuel slider by one per cent, as Right does."},
    {"Right", "Maps", "Moves the map, as the other arrows do."},
    {"Plus", "Maps", "Brings the map nearer. Minus takes it away, F shows all of it."},
};

struct HelpRow {
    const char* screen;
    const char* page;
};

constexpr HelpRow kHelpPages[] = {
    {"SelectForm", "first.htm"},      {"FlightForm", "pass.htm"},    {"InfoForm", "boards.htm"},
    {"SettingsForm", "settings.htm"}, {"OptionsForm", "boards.htm"}, {"DirForm", "settings.htm"},
    {"ImportForm", "settings.htm"},   {"ExportForm", "exports.htm"}, {"DirExportForm", "exports.htm"},
    {"ProgramsForm", "exports.htm"},  {"ViewPlan", "plan.htm"},      {"PlanCharts", "plan.htm"},
    {"FlyForm", "flying.htm"},        {"RoutesForm", "maps.htm"},    {"CareerForm", "career.htm"},
    {"LogEntry", "logbook.htm"},      {"ClockForm", "logbook.htm"},
};

} // namespace

std::span<const ShortCut> shortCuts() {
    return kShortCuts;
}

bool runShortCut(Program& p, std::string_view keys) {
    for (const ShortCut& row : kShortCuts) {
        if (row.keys == keys && row.run != nullptr) return row.run(p);
    }
    return false;
}

std::string helpPageOf(const Program& p) {
    const Screen* screen = front(p);
    const auto& main = p.forms.MainForm;
    if (screen == &main)
        return main.status_pic.visible ? "boards.htm" : main.log_pic.visible ? "logbook.htm" : "pass.htm";
    for (const HelpRow& row : kHelpPages) {
        if (screen != nullptr && screen->name == row.screen) return row.page;
    }
    return "gt_gt.htm";
}

} // namespace gatewise
