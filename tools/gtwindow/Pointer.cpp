#include "gtwindow/Pointer.h"

#include <QApplication>
#include <QScreen>
#include <QTest>

#include <algorithm>

namespace gatewise::gtwindow {

namespace {

/// Points of a box: its middle, then ever finer grids.
std::vector<QPoint> pointsOf(const QRect& box, int cells, bool low) {
    std::vector<QPoint> points;
    for (int row = 0; row < cells; ++row) {
        for (int column = 0; column < cells; ++column) {
            points.emplace_back(box.left() + box.width() * (2 * column + 1) / (2 * cells),
                                box.top() + box.height() * (2 * row + 1) / (2 * cells));
        }
    }
    if (low) std::reverse(points.begin(), points.end());
    return points;
}

bool onDesk(QPoint global) {
    return QGuiApplication::screenAt(global) != nullptr;
}

/// Whether the mouse at a point of a window meets the widget, not something that lies over it.
bool meets(const window::ScreenWindow& window, QPoint at, const QWidget& widget) {
    const QWidget* hit = window.childAt(at);
    if (hit == nullptr) return &widget == &window;
    if (hit == &widget) return true;
    auto* under = const_cast<QWidget*>(hit);
    return widget.isAncestorOf(hit) && window::viewOf(under) == window::viewOf(const_cast<QWidget*>(&widget));
}

} // namespace

window::View* Pointer::viewOf(const Control& control) const {
    const window::ScreenWindow& window = desk_.window(*control.screen);
    if (!window.isVisible()) return nullptr;
    window::View* view = window.view(control);
    return view != nullptr && view->widget()->isVisible() ? view : nullptr;
}

/// Windows of screens in front lie over those behind; the main one lies below its dialogs always.
bool Pointer::covered(const Screen& screen, QPoint global) const {
    const bool main = &screen == &forms_.MainForm;
    for (const Screen* other : forms_.front) {
        if (other == &screen) {
            if (!main) return false;
            continue;
        }
        if (other == &forms_.MainForm) continue;
        const window::ScreenWindow& window = desk_.window(*other);
        if (window.isVisible() && window.geometry().contains(global)) return true;
    }
    return false;
}

std::optional<Spot> Pointer::reach(const Control& control, bool low) const {
    window::View* view = viewOf(control);
    if (view == nullptr) return std::nullopt;
    return reach(control, *view->widget(), view->widget()->rect(), low);
}

std::optional<Spot> Pointer::reach(const Control& control, QWidget& widget, const QRect& part,
                                   bool low) const {
    window::ScreenWindow& window = desk_.window(*control.screen);
    if (!window.isVisible() || !widget.isVisible()) return std::nullopt;
    if (window.isMinimized()) window.showNormal();
    for (const int cells : {1, 7, 32}) {
        for (const QPoint point : pointsOf(part, cells, low)) {
            const QPoint at = widget.mapTo(&window, point);
            if (at.isNull() || !window.rect().contains(at) || !meets(window, at, widget)) continue;
            const QPoint global = window.mapToGlobal(at);
            if (onDesk(global) && !covered(*control.screen, global)) return Spot{window.windowHandle(), at};
        }
    }
    return std::nullopt;
}

/// Input waits in the queue as that of a hand does, which goes on while a press is being worked on.
void Pointer::post(QEvent::Type type, Qt::MouseButton button) {
    constexpr int kPause = 600; // no two clicks by chance make a double click
    if (type == QEvent::MouseButtonPress) held_ |= button;
    if (type == QEvent::MouseButtonRelease) held_ &= ~Qt::MouseButtons(button);
    if (type == QEvent::MouseMove) time_ += kPause;
    const auto send = [spot = last_, type, button, held = held_, time = ++time_] {
        if (spot.window == nullptr) return;
        const QPointF global = spot.window->mapToGlobal(QPointF(spot.at));
        qt_handleMouseEvent(spot.window, spot.at, global, held, button, type, Qt::NoModifier, time);
    };
    QMetaObject::invokeMethod(qApp, send, Qt::QueuedConnection);
}

void Pointer::move(const Spot& spot) {
    const bool there = last_.window == spot.window && last_.at == spot.at;
    last_ = spot;
    if (there) last_.at.rx() ^= 1; // a mouse that stays says nothing
    post(QEvent::MouseMove, Qt::NoButton);
    QCoreApplication::processEvents();
}

void Pointer::press(const Spot& spot, Qt::MouseButton button) {
    move(spot);
    post(QEvent::MouseButtonPress, button);
    QCoreApplication::processEvents();
}

void Pointer::letGo() {
    post(QEvent::MouseButtonRelease, Qt::LeftButton);
    QCoreApplication::processEvents();
}

void Pointer::release(const Control& control, const std::optional<Spot>& spot) {
    const window::View* view = viewOf(control);
    if (view != nullptr && last_.window != nullptr) {
        auto* widget = const_cast<window::View*>(view)->widget();
        move({last_.window, widget->mapTo(widget->window(), QPoint(-1, widget->height() / 2))});
    }
    letGo();
    if (spot) move(*spot);
}

void Pointer::click(const Spot& spot, Qt::MouseButton button) {
    move(spot);
    post(QEvent::MouseButtonPress, button);
    post(QEvent::MouseButtonRelease, button);
    QCoreApplication::processEvents();
}

void Pointer::doubleClick(const Spot& spot) {
    move(spot);
    for (int i = 0; i < 2; ++i) {
        post(QEvent::MouseButtonPress, Qt::LeftButton);
        post(QEvent::MouseButtonRelease, Qt::LeftButton);
    }
    QCoreApplication::processEvents();
}

/// The window may go along with the hand: the way is measured on the desk, from where the button went down.
void Pointer::drag(const Spot& from, QPoint by) {
    press(from);
    if (from.window == nullptr) return;
    const QPoint to = from.window->mapToGlobal(last_.at) + desk_.skin().zoom().point(by);
    move({from.window, from.window->mapFromGlobal(to)});
    if (from.window == nullptr) return;
    last_.at = from.window->mapFromGlobal(to);
    letGo();
}

void Pointer::wheel(const Spot& spot, int notches) {
    if (spot.window == nullptr) return;
    QWheelEvent event(spot.at, spot.window->mapToGlobal(QPointF(spot.at)), {}, {0, 120 * notches},
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(spot.window, &event);
}

} // namespace gatewise::gtwindow
