#include "input/UserEvents.h"

#include "input/Blocking.h"

#include <algorithm>

namespace gatewise::user {

void press(Control& control, int x, int y) {
    if (!control.enabled) return;
    control.fire(Event::Press, {0, x, y, true});
}

void release(Control& control, int x, int y) {
    if (!control.enabled) return;
    control.fire(Event::Release, {0, x, y, false});
}

void clicked(Control& control) {
    if (!control.enabled) return;
    if (control.kind == Kind::Check) {
        auto& box = static_cast<Check&>(control);
        box.set(box.value == 0 ? 1 : 0);
    } else if (control.kind == Kind::Option) {
        static_cast<Option&>(control).set(true);
    } else {
        control.fire(Event::Click);
    }
}

void click(Control& control) {
    if (!control.enabled) return;
    press(control);
    release(control);
    clicked(control);
}

void doubleClick(Control& control) {
    if (!control.enabled) return;
    control.fire(Event::DoubleClick);
}

void rightPress(Control& control) {
    if (!control.enabled) return;
    control.fire(Event::RightPress);
}

void move(Control& control, int x, int y, bool left) {
    control.fire(Event::Move, {0, x, y, left});
}

void focus(Control& control) {
    if (!control.enabled) return;
    control.fire(Event::Focus);
}

void enter(Control& control) {
    if (!control.enabled) return;
    control.fire(Event::Enter);
}

void space(Control& control) {
    if (!control.enabled) return;
    control.fire(Event::Space);
}

void type(TextBox& box, std::string text) {
    if (!box.enabled || box.readOnly) return;
    if (!box.multiLine) text.resize(std::min(text.size(), text.find_first_of("\r\n")));
    if (box.maxLength > 0 && text.size() > static_cast<std::size_t>(box.maxLength)) {
        text.resize(static_cast<std::size_t>(box.maxLength));
    }
    box.text = std::move(text);
    box.fire(Event::Change);
}

bool choose(Control& control, int place) {
    switch (control.kind) {
    case Kind::ListView: {
        auto& list = static_cast<ListView&>(control);
        if (place < 0 || place >= static_cast<int>(list.rows.size())) return false;
        if (list.enabled) list.select(place);
        return true;
    }
    case Kind::Combo:
    case Kind::ListBox:
    case Kind::DriveList:
    case Kind::FolderList:
    case Kind::FileList: {
        auto& list = static_cast<ItemControl&>(control);
        if (place < 0 || place >= list.count()) return false;
        if (list.enabled && !list.locked) list.select(place);
        return true;
    }
    default:
        return false;
    }
}

void check(Control& control, int value) {
    if (!control.enabled) return;
    // A click is a click, also where it finds the value already there.
    const auto setOrClick = [](auto& box, auto wanted) {
        if (box.value == wanted)
            box.fire(Event::Click);
        else
            box.set(wanted);
    };
    if (control.kind == Kind::Check)
        setOrClick(static_cast<Check&>(control), std::clamp(value, 0, 2));
    else if (control.kind == Kind::Option)
        setOrClick(static_cast<Option&>(control), value != 0);
}

void slide(RangeControl& control, int value) {
    if (!control.enabled) return;
    control.value = std::clamp(value, control.min, control.max);
    control.fire(Event::Change);
}

void column(ListView& list, int column) {
    if (!list.enabled) return;
    list.fire(Event::Column, {column, 0, 0, false});
}

void turn(Control& ground, int pages) {
    if (ground.enabled && ground.visible) ground.fire(Event::Turn, {pages, 0, 0, false});
}

void widen(ListView& list, int column, int width) {
    const auto at = static_cast<std::size_t>(column);
    if (list.enabled && column >= 0 && at < list.columns.size()) list.columns[at].width = std::max(width, 0);
}

bool pickOf(Chart& chart, int id) {
    if (!chart.enabled || !chart.holds(id)) return false;
    chart.fire(Event::Pick, {id, 0, 0, false});
    return true;
}

void pointAt(Chart& chart, int id) {
    if (chart.enabled) chart.fire(Event::Hover, {id, 0, 0, false});
}

void path(PathList& list, std::string path) {
    if (!list.enabled) return;
    list.path = std::move(path);
    list.fire(Event::Change);
}

void moveTo(Screen& screen, double left, double top) {
    screen.left = left;
    screen.top = top;
    if (screen.moved) screen.moved();
}

void turnTo(Forms& forms, Screen& screen) {
    const auto at = std::find(forms.front.begin(), forms.front.end(), &screen);
    if (at == forms.front.end() || &screen == &forms.MainForm) return;
    if (blockedBy(forms, screen) != nullptr) return;
    std::rotate(forms.front.begin(), at, at + 1);
}

void tick(Timer& timer) {
    if (timer.ticking) return;
    timer.ticking = true;
    timer.fire(Event::Tick);
    timer.ticking = false;
}

} // namespace gatewise::user
