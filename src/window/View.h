#pragma once

#include "forms/Control.h"
#include "window/Layout.h"
#include "window/Zoom.h"

#include <QAccessible>
#include <QWidget>

#include <functional>
#include <span>
#include <vector>

namespace gatewise::window {

class LinesTable;
class Skin;

/// Runs what an event does and brings the forms onto the screen afterwards.
class Actor {
public:
    virtual ~Actor() = default;
    virtual void act(const std::function<void()>& what) = 0;
    [[nodiscard]] virtual const Skin& skin() const = 0;
};

/// Shows one control of a form and turns what a person does there into the calls of input/UserEvents.h.
/// There is one class for each kind of control and none for a single control.
class View {
public:
    View(Actor& actor, Control* control, const ControlLayout& place)
        : control(control), place(place), actor_(actor) {}
    virtual ~View() = default;
    View(const View&) = delete;
    View& operator=(const View&) = delete;

    virtual QWidget* widget() = 0;
    /// Compares what it shows with the form and repaints what differs.
    virtual void sync() = 0;

    /// What a screen reader says: name, kind, value.
    [[nodiscard]] virtual QString spokenName() const;
    /// What it says after that.
    [[nodiscard]] virtual QString spokenDetails() const;
    [[nodiscard]] virtual QAccessible::Role role() const { return QAccessible::StaticText; }
    /// Whether it can be used now.
    [[nodiscard]] bool usable() const;
    /// Whether the Tab key stops here.
    [[nodiscard]] virtual bool takesFocus() const { return false; }
    /// The events of its control that a person can bring about here.
    [[nodiscard]] virtual std::span<const Event> emits() const = 0;
    /// Whether it would take a press, were it not for its being disabled.
    [[nodiscard]] virtual bool isKey() const { return false; }
    /// Whether a screen reader passes it by: it shows nothing that could be said.
    [[nodiscard]] virtual bool silent() const { return false; }
    /// What Enter or a screen reader's press does.
    virtual void activate() {}
    /// What the right button does.
    void showMore();
    /// What the label says that names this view, empty when there is none.
    [[nodiscard]] QString captionWords() const;
    /// Settles where it stands: its corner inside the widget around it, and the corner of that one inside the
    /// window, in pixels of the layout.
    void putAt(QPoint corner, QPoint around);
    /// Takes its place and sizes at the zoom of now.
    virtual void takePlace();
    /// What it draws beyond its box.
    [[nodiscard]] virtual QMargins beyond() const { return {}; }
    /// The box of the layout inside the widget; what is inside of it starts from there.
    [[nodiscard]] QRect frame() const { return {{beyond().left(), beyond().top()}, place.box.size()}; }
    /// The box of the layout inside the window, and the corner of the widget there.
    [[nodiscard]] QRect boxInWindow() const { return {corner_, place.box.size()}; }
    [[nodiscard]] QPoint widgetInWindow() const { return corner_ - frame().topLeft(); }

    /// Pixels of the desk to the layout's pixel, and what of the widget is where in the layout's pixels.
    [[nodiscard]] const Zoom& scale() const;
    [[nodiscard]] QPointF inLayout(QPointF ofWidget) const { return scale().back(ofWidget); }
    [[nodiscard]] QSizeF span();

    Control* const control; // null for decoration that no form knows
    const ControlLayout& place;
    View* caption = nullptr;             // the label that stands beside or above a field and names it
    std::vector<View*> named;            // the views that this label names
    const LinesTable* lines = nullptr;   // the table of which it is a cell or a head
    std::function<QString()> wordsOfRow; // of the line of a table that this view stands for, else empty

protected:
    /// Visible, tool tip: the same for all.
    void syncCommon();

    Actor& actor_;

private:
    QPoint corner_; // of the box inside the window
    QPoint around_; // of the widget around it
    std::string shownTip_;
};

/// A view that paints itself and hands the mouse to its control. What its control does not care about goes on
/// to the ground below.
class PaintedView : public QWidget, public View {
    Q_OBJECT
public:
    PaintedView(Actor& actor, Control* control, const ControlLayout& place, QWidget* parent);
    QWidget* widget() override { return this; }
    [[nodiscard]] std::span<const Event> emits() const override;

protected:
    /// The same for a view that the keyboard reaches too.
    static std::span<const Event> emitsWithKeys();
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

private:
    [[nodiscard]] bool handlesAny(std::initializer_list<Event> events) const;
    bool held_ = false;
};

/// Enter where it means the same as a double click or a click: what the form has for it.
void pressEnter(Actor& actor, Control& control);

/// Return and the Enter key of the number block.
bool isEnter(const QKeyEvent& event);

/// Mouse position in pixels of a screen's ground.
QPoint groundPosition(const Actor& actor, const Screen& screen, const QMouseEvent& event);

/// The view of a widget or of the nearest widget around it, null when there is none.
View* viewOf(QObject* object);

} // namespace gatewise::window
