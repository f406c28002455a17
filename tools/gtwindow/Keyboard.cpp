#include "gtwindow/Keyboard.h"

#include <QApplication>
#include <QTest>

#include <algorithm>

namespace gatewise::gtwindow {

namespace {

constexpr int kMostSteps = 100; // of a walk

/// Input waits in the queue as that of a hand does, which goes on while a key is being worked on.
void send(QEvent::Type type, int key, Qt::KeyboardModifiers modifiers, const QString& text, bool repeat) {
    const auto deliver = [=] {
        if (QWindow* window = QGuiApplication::focusWindow())
            qt_handleKeyEvent(window, type, key, modifiers, text, repeat, 1);
    };
    QMetaObject::invokeMethod(qApp, deliver, Qt::QueuedConnection);
}

QString textOf(Qt::Key key) {
    if (key == Qt::Key_Return) return "\r";
    return key == Qt::Key_Space ? " " : "";
}

} // namespace

const Control* Keyboard::focused() {
    const auto* view = window::viewOf(QApplication::focusWidget());
    return view == nullptr ? nullptr : view->control;
}

void Keyboard::turnTo(const Screen& screen) {
    window::ScreenWindow& window = desk_.window(screen);
    if (!window.isVisible() || window.isActiveWindow()) return;
    if (window.isMinimized()) window.showNormal();
    window.activateWindow();
    QCoreApplication::processEvents();
}

bool Keyboard::walkTo(const Control& control) {
    window::ScreenWindow& window = desk_.window(*control.screen);
    const window::View* view = window.isVisible() ? window.view(control) : nullptr;
    if (view == nullptr || !view->takesFocus()) return false;
    turnTo(*control.screen);
    const int family = view->place.family;
    const auto there = [&](const window::View* stop) {
        return stop->control == &control || (family > 0 && stop->place.family == family);
    };
    const auto stops = window.stops();
    const auto goal = std::find_if(stops.begin(), stops.end(), there);
    if (goal == stops.end()) return false;
    const auto here = std::find_if(stops.begin(), stops.end(),
                                   [](const window::View* stop) { return stop->control == focused(); });
    const auto count = static_cast<std::ptrdiff_t>(stops.size());
    const std::ptrdiff_t ahead = here == stops.end() ? 0 : (goal - here + count) % count;
    const bool back = ahead * 2 > count;
    for (int step = 0; step < kMostSteps; ++step) {
        const auto* now = window::viewOf(QApplication::focusWidget());
        if (now != nullptr && now->control != nullptr && now->control->screen == control.screen && there(now))
            return now->control == &control || walkRows(control);
        press(Qt::Key_Tab, back ? Qt::ShiftModifier : Qt::NoModifier);
    }
    return false;
}

/// From any line of a table to another one.
bool Keyboard::walkRows(const Control& control) {
    press(Qt::Key_Home);
    for (int step = 0; step < kMostSteps && focused() != &control; ++step) {
        const Control* before = focused();
        press(Qt::Key_Down);
        if (focused() == before) break;
    }
    return focused() == &control;
}

void Keyboard::press(Qt::Key key, Qt::KeyboardModifiers modifiers) {
    const bool back = key == Qt::Key_Tab && modifiers == Qt::ShiftModifier;
    const int code = back ? Qt::Key_Backtab : key;
    send(QEvent::KeyPress, code, modifiers, textOf(key), false);
    send(QEvent::KeyRelease, code, modifiers, textOf(key), false);
    QCoreApplication::processEvents();
}

void Keyboard::hold(Qt::Key key, int repeats) {
    send(QEvent::KeyPress, key, Qt::NoModifier, textOf(key), false);
    for (int i = 0; i < repeats; ++i) send(QEvent::KeyPress, key, Qt::NoModifier, textOf(key), true);
    send(QEvent::KeyRelease, key, Qt::NoModifier, textOf(key), false);
    QCoreApplication::processEvents();
}

void Keyboard::type(const QString& text) {
    for (const QChar sign : text) {
        const bool line = sign == '\n';
        if (!line && !sign.isPrint()) continue;
        const int key = line ? static_cast<int>(Qt::Key_Return) : sign.toUpper().unicode();
        const QString made = line ? QString("\r") : QString(sign);
        send(QEvent::KeyPress, key, Qt::NoModifier, made, false);
        send(QEvent::KeyRelease, key, Qt::NoModifier, made, false);
    }
    QCoreApplication::processEvents();
}

} // namespace gatewise::gtwindow
