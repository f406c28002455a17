#include "gtwindow/Ranges.h"

#include <cstdlib>

namespace gatewise::gtwindow {

namespace {

constexpr int kMostSteps = 400;

/// The arrow keys go by steps from where the value stands, or from an end.
bool onStepsFrom(const RangeControl& range, int from, int value) {
    return (value - from) % range.step == 0;
}

void stepTo(RangeControl& range, int value) {
    for (int step = 0; step < kMostSteps && range.value != value; ++step) {
        const int before = range.value;
        Keyboard::press(range.value < value ? Qt::Key_Up : Qt::Key_Down);
        if (range.value == before) return;
    }
}

void slideByMouse(Pointer& pointer, Keyboard& keyboard, RangeControl& range, int value) {
    window::View* view = pointer.viewOf(range);
    if (view == nullptr) return;
    QWidget& widget = *view->widget();
    const double share = static_cast<double>(value - range.min) / std::max(1, range.max - range.min);
    const int x = static_cast<int>(8 + share * (widget.width() - 16));
    const auto spot = pointer.reach(range, widget, {x, widget.height() / 2, 1, 1});
    if (!spot) return;
    pointer.click(*spot);
    if (range.value != value && keyboard.walkTo(range)) stepTo(range, value);
}

void clickArrows(Pointer& pointer, RangeControl& range, int value) {
    for (int step = 0; step < kMostSteps && range.value != value; ++step) {
        window::View* view = pointer.viewOf(range);
        if (view == nullptr) return;
        const QRect box = view->widget()->rect();
        const bool up = range.value < value;
        const QRect half(0, up ? 0 : box.height() / 2 + 1, box.width(), box.height() / 2 - 1);
        const auto spot = pointer.reach(range, *view->widget(), half);
        const int before = range.value;
        if (spot) pointer.click(*spot);
        if (range.value == before) return;
    }
}

} // namespace

void slideTo(Pointer& pointer, Keyboard& keyboard, RangeControl& range, int value) {
    if (range.kind == Kind::Slider) {
        slideByMouse(pointer, keyboard, range, value);
        return;
    }
    constexpr int kNear = 5; // steps that are clicked one by one
    if (!onStepsFrom(range, range.value, value) || std::abs(value - range.value) > kNear * range.step) {
        const bool byKeys = pointer.reach(range) && keyboard.walkTo(range);
        if (!byKeys) return;
        if (!onStepsFrom(range, range.value, value)) {
            const bool fromTop = onStepsFrom(range, range.max, value);
            if (!fromTop && !onStepsFrom(range, range.min, value)) return;
            Keyboard::press(fromTop ? Qt::Key_End : Qt::Key_Home);
        }
        stepTo(range, value);
        return;
    }
    clickArrows(pointer, range, value);
}

} // namespace gatewise::gtwindow
