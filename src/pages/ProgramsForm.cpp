#include "pages/ProgramsForm.h"

#include "pages/MsgBox.h"
#include "pages/Pictures.h"
#include "pages/Placement.h"
#include "pages/Screens.h"
#include "work/ProgramChoices.h"

namespace gatewise {

namespace {

// The screen, its layout and its pictures have a line for each format.
static_assert(forms::kProgramLines == programs::kFormatCount);

using programs::Choices;
using programs::Sent;

programs::Dispatch dispatchOf(const Program& p) {
    const Session& s = p.session;
    return programDispatch(s.AppDir, s.plan, s.schedule, s.dispatch, p.machine);
}

void keepChoices(Program& p, const Choices& choices) {
    if (const auto error = writeChoices(p.session.AppDir, choices))
        p.machine.desktop.notify("GT.cfg could not be written: " + error.message());
}

void showChoices(forms::ProgramsForm& f, const Choices& choices) {
    for (int i = 0; i < forms::kProgramLines; ++i) {
        const auto& line = choices.lines[static_cast<std::size_t>(i)];
        f.programCHECK(i).set(line.ticked ? 1 : 0);
        f.folderTEXT(i).text = f.folderTEXT(i).toolTip = line.folder;
    }
    f.computedCHECK.set(choices.withComputed ? 1 : 0);
    f.alwaysCHECK.set(choices.onDispatch ? 1 : 0);
}

Choices shownChoices(const forms::ProgramsForm& f) {
    Choices choices;
    for (int i = 0; i < forms::kProgramLines; ++i)
        choices.lines.push_back({f.programCHECK(i).value == 1, f.folderTEXT(i).text});
    choices.withComputed = f.computedCHECK.value == 1;
    choices.onDispatch = f.alwaysCHECK.value == 1;
    return choices;
}

/// In each line what was written there, or why nothing was.
void showResults(forms::ProgramsForm& f, const std::vector<Sent>& sent) {
    for (const Sent& one : sent) {
        const auto line = static_cast<int>(one.format - programs::formats().data());
        Label& label = f.result_LABEL(line);
        label.text = one.file.empty() ? one.reason : one.file;
        label.toolTip = label.text;
    }
}

void loadProgramsForm(Program& p) {
    auto& f = p.forms.ProgramsForm;
    placeScreen(p, f);
    restorePictures(f);
}

void activateProgramsForm(Program& p) {
    auto& f = p.forms.ProgramsForm;
    CenterOnMain(p, f);
    restorePictures(f);
    showChoices(f, readChoices(p.session.AppDir));
}

} // namespace

Waited exportToPrograms(Program& p) {
    auto& f = p.forms.ProgramsForm;
    const Choices choices = shownChoices(f);
    keepChoices(p, choices);
    const programs::Dispatch dispatch = dispatchOf(p);
    const auto sent = sendTicked(choices, dispatch);
    showResults(f, sent);
    if (const std::string text = clipboardText(choices, dispatch); !text.empty())
        p.machine.desktop.copy(text);
    return ShowMsgBox(p, sent.empty() ? "No program is ticked." : summaryOf(sent));
}

Waited browseProgramFolder(Program& p, SkinnedButton& button) {
    const auto& format = programs::formats()[static_cast<std::size_t>(button.index)];
    std::string& folder = p.forms.ProgramsForm.folderTEXT(button.index).text;
    const std::string name = fileNameOf(format, dispatchOf(p).stem);
    const auto path =
        p.machine.desktop.askSavePath(std::string("Folder for ") + format.name, folder + "/" + name);
    if (!path) return waited(p);
    const auto end = path->find_last_of("/\\");
    if (end != std::string::npos && end > 0) folder = path->substr(0, end);
    return waited(p);
}

void closePrograms(Program& p) {
    keepChoices(p, shownChoices(p.forms.ProgramsForm));
    hideScreen(p, p.forms.ProgramsForm);
}

void exportOnDispatch(Program& p) {
    const Choices choices = readChoices(p.session.AppDir);
    if (!choices.onDispatch) return;
    auto sent = sendTicked(choices, dispatchOf(p));
    showResults(p.forms.ProgramsForm, sent);
    std::erase_if(sent, [](const Sent& one) { return one.reason.empty(); });
    if (!sent.empty()) p.machine.desktop.notify(summaryOf(sent));
}

void bindProgramsForm(Program& p) {
    auto& f = p.forms.ProgramsForm;
    for (int i = 0; i < forms::kProgramLines; ++i)
        f.programCHECK(i).text = programs::formats()[static_cast<std::size_t>(i)].name;
    f.load = [&p] { loadProgramsForm(p); };
    f.activate = [&p] { activateProgramsForm(p); };
    f.BG.on(Event::Move, [&f] { restorePictures(f); });
    for (const auto& box : f.folderTEXT) box->on(Event::Focus, [&box = *box] { box.selectAll = true; });
}

} // namespace gatewise
