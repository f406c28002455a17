#include "pages/Screens.h"

#include <algorithm>

namespace gatewise {

namespace {

void bringToFront(Forms& forms, Screen& screen) {
    std::erase(forms.front, &screen);
    forms.front.insert(forms.front.begin(), &screen);
    screen.visible = true;
}

/// A button that loses its screen, or loses it to a modal one, while it is held never hears of the release:
/// its repeat ends here.
void releaseButtons(const Screen& screen) {
    for (Control* control : screen.controls) {
        SkinnedButton* button = skinnedButton(control);
        if (button != nullptr && button->Timer1) button->Timer1->enable(false);
    }
}

} // namespace

Waited waited(const Program& p) {
    return p.ending ? Waited::Ended : Waited::Answered;
}

void loadScreen(Screen& screen) {
    if (screen.loaded) return;
    screen.loaded = true;
    if (screen.load) screen.load();
}

void showScreen(Program& p, Screen& screen) {
    if (p.ending) return;
    loadScreen(screen);
    bringToFront(p.forms, screen);
    if (screen.activate) screen.activate();
}

Waited showModal(Program& p, Screen& screen) {
    if (p.ending) return Waited::Ended;
    loadScreen(screen);
    for (const Screen* other : p.forms.all()) releaseButtons(*other);
    screen.modal = true;
    bringToFront(p.forms, screen);
    if (screen.activate) screen.activate();
    p.machine.loop.runModal(screen.name, [&] { return !screen.visible || p.ending; });
    screen.modal = false;
    return waited(p);
}

void hideScreen(Program& p, Screen& screen) {
    releaseButtons(screen);
    screen.visible = false;
    screen.modal = false;
    std::erase(p.forms.front, &screen);
}

Waited pause(Program& p, std::int64_t milliseconds) {
    p.machine.loop.wait(milliseconds);
    return waited(p);
}

} // namespace gatewise
