#pragma once

#include "window/Desk.h"

#include <QPointer>
#include <QWindow>

#include <optional>

namespace gatewise::gtwindow {

/// A point of a window, in its pixels.
struct Spot {
    QPointer<QWindow> window;
    QPoint at;
};

/// A hand with a mouse at the desk: it reaches only what can be seen, and its presses and moves go through
/// the queue of the window system.
class Pointer {
public:
    explicit Pointer(window::Desk& desk, Forms& forms) : desk_(desk), forms_(forms) {}

    /// A point of the control that is visible and uncovered; nothing when there is none. `low` looks from
    /// below.
    [[nodiscard]] std::optional<Spot> reach(const Control& control, bool low = false) const;
    /// The same inside a part of a widget of the control.
    [[nodiscard]] std::optional<Spot> reach(const Control& control, QWidget& widget, const QRect& part,
                                            bool low = false) const;

    void move(const Spot& spot);
    void press(const Spot& spot, Qt::MouseButton button = Qt::LeftButton);
    /// Lets the left button go beside the control, so that it is no click, and comes back over it.
    void release(const Control& control, const std::optional<Spot>& spot);
    void click(const Spot& spot, Qt::MouseButton button = Qt::LeftButton);
    void doubleClick(const Spot& spot);
    void drag(const Spot& from, QPoint by);
    /// Turns the wheel by so many notches, up when positive.
    static void wheel(const Spot& spot, int notches);

    /// The view of a control in a window that is up; null otherwise.
    [[nodiscard]] window::View* viewOf(const Control& control) const;

private:
    [[nodiscard]] bool covered(const Screen& screen, QPoint global) const;

    void post(QEvent::Type type, Qt::MouseButton button);
    void letGo();

    window::Desk& desk_;
    Forms& forms_;
    Spot last_;
    Qt::MouseButtons held_;
    int time_ = 0; // of the last input, in milliseconds
};

} // namespace gatewise::gtwindow
