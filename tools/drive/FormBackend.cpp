#include "drive/FormBackend.h"

#include "app/StartUp.h"
#include "drive/Escape.h"
#include "input/Bind.h"
#include "input/UserEvents.h"
#include "pages/Screens.h"

namespace gatewise::drive {

FormBackend::FormBackend(Bench& bench) : bench_(bench), program_(bench.machine.machine, bench.appDir) {
    bench.machine.loop.tick = [](void* timer) { user::tick(*static_cast<Timer*>(timer)); };
}

void FormBackend::start() {
    bindScreens(program_);
    program_.forms.attachTimers(&timers_);
    startUp(program_);
}

void FormBackend::tick(Timer& timer) {
    user::tick(timer);
}

void FormBackend::click(Control& control) {
    user::click(control);
}

void FormBackend::doubleClick(Control& control) {
    user::doubleClick(control);
}

void FormBackend::press(Control& control) {
    user::press(control);
}

void FormBackend::release(Control& control) {
    user::release(control);
}

void FormBackend::rightPress(Control& control) {
    user::rightPress(control);
}

void FormBackend::move(Control& control) {
    user::move(control);
}

void FormBackend::drag(Control& ground, int dx, int dy) {
    user::press(ground, 0, 0);
    user::move(ground, dx, dy, true);
    user::release(ground, dx, dy);
}

void FormBackend::focus(Control& control) {
    user::focus(control);
}

void FormBackend::key(Control& control, Key key, int) {
    switch (key) {
    case Key::Enter:
        user::enter(control);
        return;
    case Key::Space:
        user::space(control);
        return;
    case Key::Escape:
        if (control.enabled) escape(*control.screen);
    }
}

void FormBackend::escape(Screen& screen) {
    if (screen.visible) pressEscape(screen);
}

void FormBackend::close(Screen& screen) {
    if (screen.visible) closeWindow(screen);
}

void FormBackend::type(TextBox& box, std::string text) {
    user::type(box, std::move(text));
}

void FormBackend::choose(Control& list, int place) {
    if (list.kind == Kind::Chart)
        user::pickOf(static_cast<Chart&>(list), place);
    else
        user::choose(list, place);
}

void FormBackend::hover(Chart& chart, int id) {
    user::pointAt(chart, id);
}

void FormBackend::check(Control& box, int value) {
    user::check(box, value);
}

void FormBackend::slide(RangeControl& range, int value) {
    user::slide(range, value);
}

void FormBackend::column(ListView& list, int column) {
    user::column(list, column);
}

void FormBackend::path(PathList& list, std::string path) {
    user::path(list, std::move(path));
}

} // namespace gatewise::drive
