#pragma once

#include "drive/Bench.h"
#include "pages/Program.h"

#include <optional>

namespace gatewise::drive {

enum class Key { Enter, Space, Escape };

/// What stands between the driver's words and the program: where an event goes in, and how what is shown is
/// looked at. Whether an event is understood and its screen not blocked has been found out before.
class Backend {
public:
    virtual ~Backend() = default;
    virtual Program& program() = 0;

    /// The start-up procedure.
    virtual void start() = 0;
    virtual void advance(std::int64_t milliseconds) = 0;
    virtual void tick(Timer& timer) = 0;

    // The person at the desk.
    virtual void click(Control& control) = 0;
    virtual void doubleClick(Control& control) = 0;
    virtual void press(Control& control) = 0;
    virtual void release(Control& control) = 0;
    virtual void rightPress(Control& control) = 0;
    virtual void move(Control& control) = 0;
    /// A left press on a ground of a screen, a move by so many pixels, the release.
    virtual void drag(Control& ground, int dx, int dy) = 0;
    virtual void focus(Control& control) = 0;
    /// A key pressed in a control, with so many repeats while it is held.
    virtual void key(Control& control, Key key, int repeats) = 0;
    virtual void escape(Screen& screen) = 0;
    /// The screen's window is closed by whatever manages the windows.
    virtual void close(Screen& screen) = 0;
    virtual void type(TextBox& box, std::string text) = 0;
    /// A row or item, or what has that id of a chart.
    virtual void choose(Control& list, int place) = 0;
    /// The mouse over what has that id of a chart, with -1 beside all of it.
    virtual void hover(Chart& chart, int id) = 0;
    virtual void check(Control& box, int value) = 0;
    virtual void slide(RangeControl& range, int value) = 0;
    virtual void column(ListView& list, int column) = 0;
    virtual void path(PathList& list, std::string path) = 0;

    // The desk.
    [[nodiscard]] virtual bool busy() const = 0;
    [[nodiscard]] virtual std::string clipboard() const = 0;

    /// Where what a person sees differs from the form, in words; nothing when they agree. `control` or
    /// `screen` is what is looked at.
    [[nodiscard]] virtual std::optional<std::string> differs(const Control& control) = 0;
    [[nodiscard]] virtual std::optional<std::string> differs(const Screen& screen) = 0;

    /// The process ends after this, without unwinding: nothing may go on beside it.
    virtual void leave() {}
};

} // namespace gatewise::drive
