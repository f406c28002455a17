#include "window/ScreenWindow.h"

#include "input/UserEvents.h"
#include "window/Drawing.h"
#include "window/Fields.h"
#include "window/QtText.h"
#include "window/ScreenNames.h"
#include "window/Skin.h"
#include "window/Tone.h"

#include <QCloseEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QScreen>

#include <algorithm>
#include <cmath>

namespace gatewise::window {

namespace {

constexpr int kTitleStrip = 30; // height of the part by which a dialog is moved

} // namespace

ScreenWindow::ScreenWindow(Actor& actor, Screen& screen, const ScreenLayout& layout)
    : actor_(actor), screen_(screen), views_(buildViews(actor, screen, layout, this)),
      walk_(actor, views_.all), ring_(new FocusRing(this, actor.skin().zoom())),
      size_(layout.size.isEmpty() ? QSize(screen.designWidth, screen.designHeight) : layout.size) {
    setWindowTitle(toQt(screen.caption));
    setAccessibleName(toQt(screen.caption));
    setFixedSize(zoom().size(size_));
    setMouseTracking(true);
    nameFields(views_.all);
    nameRows(views_.all);
    ring_->raise();
}

void ScreenWindow::takeSizes() {
    setFixedSize(zoom().size(size_));
    for (View* view : views_.all) view->takePlace();
    ring_->surround({});
    // Each by itself: grounds cover the window, and what lies below them is not painted, nor they with it.
    for (QWidget* part : findChildren<QWidget*>()) part->update();
    update();
}

View* ScreenWindow::view(const Control& control) const {
    const auto at =
        std::find_if(views_.all.begin(), views_.all.end(), [&](View* v) { return v->control == &control; });
    return at == views_.all.end() ? nullptr : *at;
}

void ScreenWindow::sync() {
    if (isEnabled() != screen_.enabled) setEnabled(screen_.enabled);
    for (View* view : views_.all) view->sync();
    if (View* held = viewOf(focusWidget())) walk_.leaveEmptyRow(*held);
    View* now = isActiveWindow() ? viewOf(focusWidget()) : nullptr;
    const bool pressed = byMouse_ && dynamic_cast<PaintedView*>(now) != nullptr &&
                         now->widget()->focusProxy() == nullptr; // a key that the mouse lit already
    const bool shown = now != nullptr && now->widget()->isVisible() && !pressed;
    ring_->surround(shown ? ringBox(*now) : QRect());
}

void ScreenWindow::place() {
    QPoint at(zoom().edge(screen_.left), zoom().edge(screen_.top));
    const QScreen* desk = QGuiApplication::screenAt(at + rect().center());
    if (desk == nullptr) desk = QGuiApplication::screenAt(at);
    if (desk == nullptr) desk = QGuiApplication::primaryScreen();
    if (desk != nullptr && !(QGuiApplication::mouseButtons() & Qt::LeftButton)) {
        const QRect room = desk->availableGeometry();
        const QPoint seen(std::max(room.left(), std::min(at.x(), room.right() + 1 - width())),
                          std::max(room.top(), std::min(at.y(), room.bottom() + 1 - height())));
        if (seen != at) {
            screen_.left = seen.x() / zoom().factor;
            screen_.top = seen.y() / zoom().factor;
        }
        at = seen;
    }
    if (pos() != at) move(at);
}

// ------------------------------------------------------------------------------------------------ keyboard

bool ScreenWindow::focusNextPrevChild(bool next) {
    View* from = viewOf(focusWidget());
    const bool lost = from != nullptr && !from->widget()->isVisible(); // it went, nobody left it
    const bool went = walk_.step(from, next);
    if (lost) givenByWindow();
    return went;
}

/// What the keyboard is in now is no choice of the pilot's.
void ScreenWindow::givenByWindow() {
    if (auto* line = dynamic_cast<LineView*>(focusWidget())) line->givenByWindow();
}

void ScreenWindow::focusFirst() {
    View* wanted = screen_.first != nullptr ? view(*screen_.first) : nullptr;
    if (wanted != nullptr && wanted->takesFocus())
        wanted->widget()->setFocus(Qt::TabFocusReason);
    else
        walk_.first();
    givenByWindow();
}

void ScreenWindow::focusMoved(QWidget* now) {
    View* view = viewOf(now);
    if (view == nullptr) return;
    if (view->control == nullptr) {
        focused_ = view;
        actor_.act([] {}); // the ring alone
    } else if (view != focused_) {
        focused_ = view;
        Control& control = *view->control;
        actor_.act([&] { user::focus(control); });
    } else {
        actor_.act([] {}); // the window came back: the ring with it
    }
}

QRect ScreenWindow::ringBox(View& view) const {
    const auto boxOf = [this](const View& v) { return zoom().box(v.boxInWindow()); };
    QRect box = boxOf(view);
    if (view.place.family == 0) return box;
    for (View* other : views_.all) {
        if (other->place.family == view.place.family && other->place.row == view.place.row)
            box |= boxOf(*other);
    }
    return box;
}

void ScreenWindow::keyPressEvent(QKeyEvent* event) {
    View* view = viewOf(focusWidget());
    if (event->key() == Qt::Key_Escape)
        screen_.heedsEscape ? pressClose() : event->ignore();
    else if (view == nullptr || !walk_.press(*view, event->key()))
        event->ignore();
}

void ScreenWindow::pressClose() {
    Control* key = screen_.closingControl();
    if (key != nullptr) actor_.act([&] { user::click(*key); });
}

// ------------------------------------------------------------------------------------------------ mouse

/// What no view takes arrives here: a press in the title strip takes hold of the window.
void ScreenWindow::mousePressEvent(QMouseEvent* event) {
    gripped_ = event->button() == Qt::LeftButton && event->position().y() < zoom().edge(kTitleStrip);
    grip_ = event->position().toPoint();
}

void ScreenWindow::mouseMoveEvent(QMouseEvent* event) {
    if (gripped_ && event->buttons().testFlag(Qt::LeftButton))
        movedTo(event->globalPosition().toPoint() - grip_);
}

void ScreenWindow::mouseReleaseEvent(QMouseEvent*) {
    gripped_ = false;
}

void ScreenWindow::putOut() {
    // Pictures go out with a move over the ground; a fast hand comes and goes without one.
    actor_.act([this] {
        for (View* view : views_.all) {
            const bool ground = view->control != nullptr && view->control->kind == Kind::Container;
            if (ground && view->control->visible) user::move(*view->control);
        }
    });
}

/// What was lit when the screen went may be lit still when it has come again.
void ScreenWindow::enterEvent(QEnterEvent* event) {
    leaveEvent(event);
}

void ScreenWindow::leaveEvent(QEvent*) {
    if (screen_.visible) putOut();
}

void ScreenWindow::paintEvent(QPaintEvent*) {
    // Only seen where a screen has no ground of its own.
    QPainter painter(this);
    painter.fillRect(rect(), groundOf(kPanel));
    drawBox(painter, rect(), QColor(), kSocket, 0);
    drawBox(painter, rect().adjusted(1, 1, -1, -1), QColor(), actor_.skin().style("frame.border"), 0);
}

// ------------------------------------------------------------------------------------------------ window

void ScreenWindow::closeEvent(QCloseEvent* event) {
    event->ignore();
    if (screen_.enabled) pressClose(); // else it takes no input now, from the window manager neither
}

void ScreenWindow::moveEvent(QMoveEvent* event) {
    QWidget::moveEvent(event);
    // A window manager that moves the window moves the form; while the mouse drags it, the form leads.
    if (event->spontaneous() && !(QGuiApplication::mouseButtons() & Qt::LeftButton)) movedTo(pos());
}

void ScreenWindow::movedTo(QPoint corner) {
    const QPointF at = zoom().back(corner);
    actor_.act([&] { user::moveTo(screen_, at.x(), at.y()); });
}

} // namespace gatewise::window
