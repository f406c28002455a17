#include "drive/Commands.h"
#include "drive/Controls.h"
#include "input/Blocking.h"

#include <algorithm>
#include <limits>

namespace gatewise::drive {

namespace {

constexpr long long kMostRepeats = 100000; // of a key that is held

Outcome refuseScreen(const Forms& forms, const Screen& screen) {
    if (const Screen* modal = user::blockedBy(forms, screen)) return modal->name + " is modal";
    if (!screen.enabled) return screen.name + " is disabled";
    return kDone;
}

std::string noSuch(const char* kind, std::string_view name) {
    return "no " + std::string(kind) + " " + std::string(name);
}

/// Finds the control that the line begins with, and tells whether a person can reach it now.
Outcome reach(Session& session, std::string_view& rest, Control*& control) {
    Forms& forms = session.program().forms;
    const std::string_view name = takeWord(rest);
    control = forms.control(name);
    if (control == nullptr || control->kind == Kind::Timer) return noSuch("control", name);
    return refuseScreen(forms, *control->screen);
}

/// Events that need nothing but the control.
template<void (Backend::*Act)(Control&)> Outcome plain(Session& session, std::string_view rest) {
    Control* control = nullptr;
    if (Outcome refused = reach(session, rest, control)) return refused;
    if (!rest.empty()) return unexpected(rest);
    (session.backend().*Act)(*control);
    return kDone;
}

Outcome drag(Session& session, std::string_view rest) {
    Forms& forms = session.program().forms;
    const std::string_view name = takeWord(rest);
    const auto dx = integerArgument(takeWord(rest));
    const auto dy = integerArgument(rest);
    const Screen* screen = forms.find(name);
    if (screen == nullptr) return noSuch("screen", name);
    Control* ground = screen->find("BG");
    if (ground == nullptr) return noSuch("control", screen->name + ".BG");
    const auto near = [](long long pixels) { return pixels >= -100000 && pixels <= 100000; };
    if (!dx || !dy || !near(*dx) || !near(*dy)) return "expected two numbers of pixels";
    if (Outcome refused = refuseScreen(forms, *screen)) return refused;
    session.backend().drag(*ground, static_cast<int>(*dx), static_cast<int>(*dy));
    return kDone;
}

constexpr std::pair<std::string_view, Key> kKeys[] = {
    {"enter", Key::Enter}, {"space", Key::Space}, {"escape", Key::Escape}};

std::optional<Key> keyNamed(std::string_view name) {
    for (const auto& [word, key] : kKeys) {
        if (word == name) return key;
    }
    return std::nullopt;
}

/// The number of repeats behind a key's name, "held N"; none when nothing stands there.
std::optional<int> repeatsArgument(std::string_view rest) {
    if (rest.empty()) return 0;
    const bool held = takeWord(rest) == "held";
    const auto repeats = integerArgument(rest);
    if (!held || !repeats || *repeats < 0 || *repeats > kMostRepeats) return std::nullopt;
    return static_cast<int>(*repeats);
}

Outcome escapeScreen(Session& session, Screen& screen, std::string_view rest) {
    if (rest != "escape") return "expected escape";
    if (Outcome refused = refuseScreen(session.program().forms, screen)) return refused;
    session.backend().escape(screen);
    return kDone;
}

Outcome close(Session& session, std::string_view rest) {
    Forms& forms = session.program().forms;
    const std::string_view name = takeWord(rest);
    Screen* screen = forms.find(name);
    if (screen == nullptr) return noSuch("screen", name);
    if (!rest.empty()) return unexpected(rest);
    if (Outcome refused = refuseScreen(forms, *screen)) return refused;
    session.backend().close(*screen);
    return kDone;
}

Outcome key(Session& session, std::string_view rest) {
    std::string_view words = rest;
    Screen* screen = session.program().forms.find(takeWord(words));
    if (screen != nullptr) return escapeScreen(session, *screen, words);
    Control* control = nullptr;
    if (Outcome refused = reach(session, rest, control)) return refused;
    const auto key = keyNamed(takeWord(rest));
    if (!key) return "expected enter, space or escape";
    const auto repeats = repeatsArgument(rest);
    if (!repeats) return "expected held and a number";
    session.backend().key(*control, *key, *repeats);
    return kDone;
}

Outcome type(Session& session, std::string_view rest) {
    Control* control = nullptr;
    if (Outcome refused = reach(session, rest, control)) return refused;
    auto* box = controlAs<TextBox>(control);
    if (box == nullptr) return control->fullName() + " is no text box";
    auto text = textArgument(rest);
    if (!text) return "broken text";
    session.backend().type(*box, std::move(*text));
    return kDone;
}

bool isMark(const Control& chart, std::optional<long long> id) {
    return id && *id >= 0 && *id <= std::numeric_limits<int>::max() &&
           static_cast<const Chart&>(chart).holds(static_cast<int>(*id));
}

Outcome chooseMark(Session& session, Control& chart, std::optional<long long> id, std::string_view word) {
    if (!isMark(chart, id)) return noSuch("mark", word);
    session.backend().choose(chart, static_cast<int>(*id));
    return kDone;
}

Outcome hover(Session& session, std::string_view rest) {
    Control* control = nullptr;
    if (Outcome refused = reach(session, rest, control)) return refused;
    auto* chart = controlAs<Chart>(control);
    if (chart == nullptr) return control->fullName() + " is no chart or map";
    const auto id = integerArgument(rest);
    if (id != -1 && !isMark(*chart, id)) return noSuch("mark", rest);
    session.backend().hover(*chart, static_cast<int>(*id));
    return kDone;
}

Outcome choose(Session& session, std::string_view rest) {
    Control* control = nullptr;
    if (Outcome refused = reach(session, rest, control)) return refused;
    const auto* list = controlAs<ItemControl>(control);
    const auto* view = controlAs<ListView>(control);
    const auto* chart = controlAs<Chart>(control);
    if (list == nullptr && view == nullptr && chart == nullptr) return control->fullName() + " is no list";
    const auto place = integerArgument(rest);
    if (chart != nullptr) return chooseMark(session, *control, place, rest);
    const long long count = list != nullptr ? list->count() : static_cast<long long>(view->rows.size());
    if (!place || *place < 0 || *place >= count) return noSuch("item", rest);
    session.backend().choose(*control, static_cast<int>(*place));
    return kDone;
}

Outcome check(Session& session, std::string_view rest) {
    Control* control = nullptr;
    if (Outcome refused = reach(session, rest, control)) return refused;
    const bool option = controlAs<Option>(control) != nullptr;
    if (!option && controlAs<Check>(control) == nullptr)
        return control->fullName() + " is no check or option box";
    const auto value = integerArgument(rest);
    if (!value || *value > 1 || *value < (option ? 1 : 0)) return option ? "expected 1" : "expected 0 or 1";
    session.backend().check(*control, static_cast<int>(*value));
    return kDone;
}

Outcome slide(Session& session, std::string_view rest) {
    Control* control = nullptr;
    if (Outcome refused = reach(session, rest, control)) return refused;
    auto* range = controlAs<RangeControl>(control);
    if (range == nullptr) return control->fullName() + " is no slider or up-down control";
    const auto value = integerArgument(rest);
    if (!value) return "expected a number";
    session.backend().slide(*range, static_cast<int>(std::clamp<long long>(*value, range->min, range->max)));
    return kDone;
}

Outcome column(Session& session, std::string_view rest) {
    Control* control = nullptr;
    if (Outcome refused = reach(session, rest, control)) return refused;
    auto* view = controlAs<ListView>(control);
    if (view == nullptr) return control->fullName() + " is no list view";
    const auto number = integerArgument(rest);
    if (!number || *number < 0 || *number >= static_cast<long long>(view->columns.size()))
        return noSuch("column", rest);
    session.backend().column(*view, static_cast<int>(*number));
    return kDone;
}

Outcome path(Session& session, std::string_view rest) {
    Control* control = nullptr;
    if (Outcome refused = reach(session, rest, control)) return refused;
    auto* list = controlAs<PathList>(control);
    if (list == nullptr || list->kind == Kind::FileList)
        return control->fullName() + " is no drive or folder list";
    auto target = pathArgument(rest);
    if (!target) return "broken text";
    session.backend().path(*list, std::move(*target));
    return kDone;
}

constexpr Command kEventCommands[] = {
    {"click", "C", "a full click with the left button", plain<&Backend::click>},
    {"dblclick", "C", "a double click with the left button", plain<&Backend::doubleClick>},
    {"press", "C", "left button down", plain<&Backend::press>},
    {"release", "C", "left button up", plain<&Backend::release>},
    {"rightdown", "C", "right button down", plain<&Backend::rightPress>},
    {"move", "C", "the mouse moves over the control", plain<&Backend::move>},
    {"drag", "SCREEN DX DY", "drags a screen by its ground, in pixels", drag},
    {"focus", "C", "the control gets the input focus", plain<&Backend::focus>},
    {"key", "C enter|space|escape [held N]",
     "a key in a control, held down for N repeats; escape also in a screen", key},
    {"close", "SCREEN", "the window manager closes the screen's window", close},
    {"type", "C TEXT", "the text of a text box is replaced by typing", type},
    {"choose", "C N", "picks item or row N, from 0; of a chart or map what has the id N", choose},
    {"hover", "C N", "the mouse rests on what has the id N of a chart or map; -1: beside all", hover},
    {"check", "C V", "sets a check box (0, 1) or an option box (1)", check},
    {"slide", "C V", "sets a slider or up-down control", slide},
    {"column", "C N", "clicks the head of column N, from 0", column},
    {"path", "C TEXT", "moves a drive or folder list", path},
};

} // namespace

std::span<const Command> eventCommands() {
    return kEventCommands;
}

} // namespace gatewise::drive
