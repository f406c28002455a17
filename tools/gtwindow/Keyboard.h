#pragma once

#include "window/Desk.h"

namespace gatewise::gtwindow {

/// A hand on the keyboard: keys go to whatever has the focus, through the queue of the window system.
class Keyboard {
public:
    explicit Keyboard(window::Desk& desk) : desk_(desk) {}

    /// Walks the focus to a control, with Tab and, in a table, the arrow keys. False when it never comes
    /// there.
    bool walkTo(const Control& control);
    /// The control that has the focus, null for none.
    [[nodiscard]] static const Control* focused();
    /// Turns to a window, as by the window manager.
    void turnTo(const Screen& screen);

    static void press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Presses a key and lets it repeat so many times before it goes up.
    static void hold(Qt::Key key, int repeats);
    /// Types a text sign by sign; line breaks by the Enter key. Signs that no key makes are left out.
    static void type(const QString& text);

private:
    bool walkRows(const Control& control);
    window::Desk& desk_;
};

} // namespace gatewise::gtwindow
