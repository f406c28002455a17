#include "window/FocusWalk.h"

#include "input/UserEvents.h"

#include <algorithm>

namespace gatewise::window {

namespace {

bool begins(const Control& control, std::string_view word) {
    return control.kind >= Kind::FlatButton && control.kind <= Kind::midButton &&
           static_cast<const SkinnedButton&>(control).button_type.starts_with(word);
}

} // namespace

FocusWalk::FocusWalk(Actor& actor, const std::vector<View*>& views)
    : actor_(actor), order_(views), views_(views) {
    std::stable_sort(order_.begin(), order_.end(), [](const View* a, const View* b) {
        constexpr int kLast = 1 << 20;
        const auto place = [](const View* v) { return v->place.tab > 0 ? v->place.tab : kLast; };
        return place(a) < place(b);
    });
}

/// The view that takes the focus for the line of a table on which the keyboard stands.
View* FocusWalk::rowLeader(int family) const {
    const auto now = rowNow_.find(family);
    View* first = nullptr;
    for (View* view : views_) {
        if (view->place.family != family || !view->takesFocus() || !view->widget()->isVisible()) continue;
        if (now != rowNow_.end() && view->place.row == now->second) return view;
        if (first == nullptr) first = view;
    }
    return first;
}

std::vector<View*> FocusWalk::stops() const {
    bool optionOn = false;
    for (const View* view : views_) {
        if (view->control != nullptr && view->control->kind == Kind::Option) {
            optionOn = optionOn || static_cast<const Option&>(*view->control).value;
        }
    }
    std::vector<View*> out;
    for (View* view : order_) {
        if (!view->takesFocus() || !view->widget()->isVisible()) continue;
        if (view->place.family > 0 && view != rowLeader(view->place.family)) continue;
        const bool option = view->control != nullptr && view->control->kind == Kind::Option;
        if (option && optionOn && !static_cast<const Option&>(*view->control).value) continue;
        out.push_back(view);
    }
    return out;
}

void FocusWalk::goTo(View& view) {
    if (view.place.family > 0) rowNow_[view.place.family] = view.place.row;
    view.widget()->setFocus(Qt::TabFocusReason);
}

bool FocusWalk::step(View* from, bool forward) {
    const std::vector<View*> all = stops();
    if (all.empty()) return false;
    // A key that has just been switched off is no stop, and its neighbours are those it had.
    const auto isStop = [&](View* view) { return std::find(all.begin(), all.end(), view) != all.end(); };
    const std::size_t count = order_.size();
    const auto at = std::find(order_.begin(), order_.end(), from);
    std::size_t to = at != order_.end() ? static_cast<std::size_t>(at - order_.begin())
                     : forward          ? count - 1
                                        : 0;
    do {
        to = (to + (forward ? 1 : count - 1)) % count;
    } while (!isStop(order_[to]));
    goTo(*order_[to]);
    return true;
}

void FocusWalk::first() {
    const std::vector<View*> all = stops();
    if (all.empty()) return;
    const auto at = std::find_if(all.begin(), all.end(), [](const View* v) {
        return v->control == nullptr || !begins(*v->control, "close");
    });
    goTo(at == all.end() ? *all.front() : **at);
}

bool FocusWalk::press(View& view, int key) {
    const bool words = view.control != nullptr && view.takesFocus() &&
                       (view.control->kind == Kind::Label || view.control->kind == Kind::HitArea);
    return words && (moveRow(view, key) || pressRow(view, key));
}

/// The lines with words of the column that a view of a table stands in.
std::vector<View*> FocusWalk::rowsOf(const View& view) const {
    std::vector<View*> rows;
    for (View* other : views_) {
        const bool sameArray =
            other->place.family == view.place.family && other->place.name == view.place.name;
        if (sameArray && other->takesFocus() && other->widget()->isVisible()) rows.push_back(other);
    }
    return rows;
}

void FocusWalk::leaveEmptyRow(View& view) {
    if (view.place.family == 0 || view.takesFocus() || !view.widget()->isVisible()) return;
    View* above = nullptr;
    for (View* other : rowsOf(view)) {
        if (above == nullptr || other->place.row < view.place.row) above = other;
    }
    if (above != nullptr) goTo(*above);
}

bool FocusWalk::moveRow(const View& view, int key) {
    const std::vector<View*> rows = rowsOf(view);
    const auto at = std::find(rows.begin(), rows.end(), &view);
    if (at == rows.end()) return false;
    const auto here = at - rows.begin();
    const auto last = static_cast<std::ptrdiff_t>(rows.size()) - 1;
    std::ptrdiff_t to = here;
    switch (key) {
    case Qt::Key_Up:
        to = std::max<std::ptrdiff_t>(here - 1, 0);
        break;
    case Qt::Key_Down:
        to = std::min(here + 1, last);
        break;
    case Qt::Key_Home:
        to = 0;
        break;
    case Qt::Key_End:
        to = last;
        break;
    default:
        return false;
    }
    goTo(*rows[static_cast<std::size_t>(to)]);
    return true;
}

bool FocusWalk::pressRow(View& view, int key) {
    if (key == Qt::Key_Return || key == Qt::Key_Enter) {
        view.activate();
        return true;
    }
    if (key != Qt::Key_Space && key != Qt::Key_Menu) return false;
    Control& control = *view.control;
    actor_.act([&] {
        if (control.handles(Event::RightPress))
            user::rightPress(control);
        else if (control.handles(Event::Click))
            user::click(control);
        else
            user::doubleClick(control);
    });
    return true;
}

} // namespace gatewise::window
