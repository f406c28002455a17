#include "drive/Commands.h"
#include "drive/Controls.h"
#include "screens/UserEvents.h"

#include <algorithm>

namespace gatewise::drive {

namespace {

/// The modal screen that keeps input from `screen`: everything behind it waits, what came up over it does
/// not.
const Screen* blockedBy(const Forms& forms, const Screen& screen) {
    const Screen* modal = forms.modalScreen();
    if (modal == nullptr) return nullptr;
    for (const Screen* shown : forms.front) {
        if (shown == &screen) return nullptr;
        if (shown == modal) return modal;
    }
    return modal;
}

Outcome refuseScreen(const Forms& forms, const Screen& screen) {
    if (const Screen* modal = blockedBy(forms, screen)) return modal->name + " is modal";
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
template<void (*Act)(Control&)> Outcome plain(Session& session, std::string_view rest) {
    Control* control = nullptr;
    if (Outcome refused = reach(session, rest, control)) return refused;
    if (!rest.empty()) return unexpected(rest);
    Act(*control);
    return kDone;
}

void press(Control& control) {
    user::press(control);
}

void release(Control& control) {
    user::release(control);
}

void move(Control& control) {
    user::move(control);
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
    user::press(*ground, 0, 0);
    user::move(*ground, static_cast<int>(*dx), static_cast<int>(*dy), true);
    user::release(*ground, static_cast<int>(*dx), static_cast<int>(*dy));
    return kDone;
}

Outcome key(Session& session, std::string_view rest) {
    Control* control = nullptr;
    if (Outcome refused = reach(session, rest, control)) return refused;
    if (rest == "enter") {
        user::enter(*control);
    } else if (rest == "space") {
        user::space(*control);
    } else {
        return "expected enter or space";
    }
    return kDone;
}

Outcome type(Session& session, std::string_view rest) {
    Control* control = nullptr;
    if (Outcome refused = reach(session, rest, control)) return refused;
    auto* box = controlAs<TextBox>(control);
    if (box == nullptr) return control->fullName() + " is no text box";
    auto text = textArgument(rest);
    if (!text) return "broken text";
    user::type(*box, std::move(*text));
    return kDone;
}

Outcome choose(Session& session, std::string_view rest) {
    Control* control = nullptr;
    if (Outcome refused = reach(session, rest, control)) return refused;
    const auto* list = controlAs<ItemControl>(control);
    const auto* view = controlAs<ListView>(control);
    if (list == nullptr && view == nullptr) return control->fullName() + " is no list";
    const auto place = integerArgument(rest);
    const long long count = list != nullptr ? list->count() : static_cast<long long>(view->rows.size());
    if (!place || *place < 0 || *place >= count) return noSuch("item", rest);
    user::choose(*control, static_cast<int>(*place));
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
    user::check(*control, static_cast<int>(*value));
    return kDone;
}

Outcome slide(Session& session, std::string_view rest) {
    Control* control = nullptr;
    if (Outcome refused = reach(session, rest, control)) return refused;
    auto* range = controlAs<RangeControl>(control);
    if (range == nullptr) return control->fullName() + " is no slider or up-down control";
    const auto value = integerArgument(rest);
    if (!value) return "expected a number";
    user::slide(*range, static_cast<int>(std::clamp<long long>(*value, range->min, range->max)));
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
    user::column(*view, static_cast<int>(*number));
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
    user::path(*list, std::move(*target));
    return kDone;
}

constexpr Command kEventCommands[] = {
    {"click", plain<user::click>},
    {"dblclick", plain<user::doubleClick>},
    {"press", plain<press>},
    {"release", plain<release>},
    {"rightdown", plain<user::rightPress>},
    {"move", plain<move>},
    {"drag", drag},
    {"focus", plain<user::focus>},
    {"key", key},
    {"type", type},
    {"choose", choose},
    {"check", check},
    {"slide", slide},
    {"column", column},
    {"path", path},
};

} // namespace

std::span<const Command> eventCommands() {
    return kEventCommands;
}

} // namespace gatewise::drive
