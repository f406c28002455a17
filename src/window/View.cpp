#include "window/View.h"

#include "input/UserEvents.h"
#include "window/QtText.h"
#include "window/Skin.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>
#include <cmath>

namespace gatewise::window {

QString View::spokenName() const {
    if (!place.says.isEmpty()) return place.says;
    if (caption != nullptr) return captionWords();
    return control == nullptr ? QString() : toQt(control->toolTip);
}

QString View::spokenDetails() const {
    if (control == nullptr) return {};
    const QString tip = toQt(control->toolTip);
    return tip == spokenName() ? QString() : tip;
}

void View::showMore() {
    actor_.act([this] { user::rightPress(*control); });
}

QString View::captionWords() const {
    if (caption == nullptr) return {};
    if (!caption->place.says.isEmpty()) return caption->place.says;
    QString words = toQt(static_cast<const Label&>(*caption->control).text).simplified();
    if (words.endsWith(':')) words.chop(1);
    return words;
}

void View::putAt(QPoint corner, QPoint around) {
    corner_ = around + corner;
    around_ = around;
    takePlace();
}

void View::takePlace() {
    const QRect box = boxInWindow().marginsAdded(beyond());
    widget()->setGeometry(scale().box(box).translated(-scale().point(around_)));
}

const Zoom& View::scale() const {
    return actor_.skin().zoom();
}

QSizeF View::span() {
    return QSizeF(widget()->size()) / scale().factor;
}

bool View::usable() const {
    return control != nullptr && control->usable();
}

void View::syncCommon() {
    if (control == nullptr) return;
    const bool shown = control->visible || (place.blinks && actor_.skin().steady);
    if (shown == widget()->isHidden()) widget()->setVisible(shown);
    if (shownTip_ != control->toolTip) {
        shownTip_ = control->toolTip;
        widget()->setToolTip(toQt(shownTip_));
        widget()->setAccessibleDescription(toQt(shownTip_));
    }
}

PaintedView::PaintedView(Actor& actor, Control* control, const ControlLayout& place, QWidget* parent)
    : QWidget(parent), View(actor, control, place) {
    setMouseTracking(true);
    const bool words = control != nullptr && control->kind == Kind::Label;
    setAttribute(Qt::WA_TransparentForMouseEvents, words && place.over);
}

namespace {

constexpr Event kHands[] = {Event::Press,      Event::Release, Event::Click, Event::DoubleClick,
                            Event::RightPress, Event::Move,    Event::Focus, Event::Enter};
constexpr std::size_t kMouseEvents = 6; // the last two belong to the keyboard

} // namespace

std::span<const Event> PaintedView::emits() const {
    return std::span(kHands).first(kMouseEvents);
}

std::span<const Event> PaintedView::emitsWithKeys() {
    return kHands;
}

void pressEnter(Actor& actor, Control& control) {
    actor.act([&] {
        if (control.handles(Event::Enter))
            user::enter(control);
        else if (control.handles(Event::DoubleClick))
            user::doubleClick(control);
        else
            user::click(control);
    });
}

bool isEnter(const QKeyEvent& event) {
    return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool PaintedView::handlesAny(std::initializer_list<Event> events) const {
    return control != nullptr && control->enabled &&
           std::any_of(events.begin(), events.end(), [&](Event e) { return control->handles(e); });
}

QPoint groundPosition(const Actor& actor, const Screen& screen, const QMouseEvent& event) {
    const QPointF at = actor.skin().zoom().back(event.globalPosition());
    return {static_cast<int>(std::lround(at.x() - screen.left)),
            static_cast<int>(std::lround(at.y() - screen.top))};
}

void PaintedView::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton &&
        handlesAny({Event::Press, Event::Release, Event::Click, Event::DoubleClick})) {
        const QPoint at = groundPosition(actor_, *control->screen, *event);
        held_ = true;
        // What was pressed has the keyboard: after a dialog it comes back to where the hand was.
        if (takesFocus()) setFocus(Qt::MouseFocusReason);
        actor_.act([&] { user::press(*control, at.x(), at.y()); });
    } else if (event->button() == Qt::RightButton && handlesAny({Event::RightPress})) {
        actor_.act([&] { user::rightPress(*control); });
    } else {
        event->ignore();
    }
}

void PaintedView::mouseReleaseEvent(QMouseEvent* event) {
    if (!held_ || event->button() != Qt::LeftButton) {
        event->ignore();
        return;
    }
    held_ = false;
    const QPoint at = groundPosition(actor_, *control->screen, *event);
    const bool inside = rect().contains(event->position().toPoint());
    actor_.act([&] {
        user::release(*control, at.x(), at.y());
        if (inside && control->enabled) user::clicked(*control);
    });
}

void PaintedView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && handlesAny({Event::DoubleClick})) {
        actor_.act([&] { user::doubleClick(*control); });
        return;
    }
    mousePressEvent(event); // a quick second click
}

void PaintedView::mouseMoveEvent(QMouseEvent* event) {
    // What is off lights up all the same.
    if (control == nullptr || !control->handles(Event::Move)) {
        event->ignore();
        return;
    }
    const QPoint at = groundPosition(actor_, *control->screen, *event);
    const bool left = event->buttons().testFlag(Qt::LeftButton);
    actor_.act([&] { user::move(*control, at.x(), at.y(), left); });
    // A press that no view took drags the window.
    if (left && !held_) event->ignore();
}

View* viewOf(QObject* object) {
    for (; object != nullptr; object = object->parent()) {
        if (auto* view = dynamic_cast<View*>(object)) return view;
    }
    return nullptr;
}

} // namespace gatewise::window
