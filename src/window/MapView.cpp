#include "window/MapView.h"

#include "window/Drawing.h"
#include "window/QtText.h"
#include "window/Skin.h"
#include "window/Tone.h"

#include <QGestureEvent>
#include <QMouseEvent>
#include <QNativeGestureEvent>
#include <QPainter>
#include <QWheelEvent>

#include <cmath>
#include <utility>

namespace gatewise::window {

namespace {

constexpr double kStep = 1.3;   // a zoom by one key or one notch of the wheel
constexpr double kShare = 0.15; // of the sheet that an arrow key moves
constexpr int kEdge = 2;        // pixels of the well around the map
constexpr double kDragFrom = 4; // pixels, below that a press is a click

struct KeyRow {
    int key;
    double x, y; // shares of the sheet that the map is moved by
};
constexpr KeyRow kKeys[] = {{Qt::Key_Left, kShare, 0},
                            {Qt::Key_Right, -kShare, 0},
                            {Qt::Key_Up, 0, kShare},
                            {Qt::Key_Down, 0, -kShare}};

} // namespace

MapView::MapView(Actor& actor, Control* control, const ControlLayout& place, QWidget* parent)
    : PickView(actor, control, place, parent) {
    setFocusPolicy(Qt::StrongFocus);
    grabGesture(Qt::PinchGesture);
}

void MapView::sync() {
    syncCommon();
    const MapScene& shown = pane_.scene();
    if (mapChart().scene == shown && chart().chosen == pane_.chosen()) return;
    // Other places are shown whole; another choice, or news of the same places, leaves the map where it is.
    if (!map::samePlaces(mapChart().scene, shown)) fits_ = true;
    auto scene = std::make_shared<const MapScene>(mapChart().scene);
    const MapSight sight = fits_ ? whole(*scene) : pane_.sight();
    pane_.show(std::move(scene), chart().chosen, sight);
}

QString MapView::spokenName() const {
    const QString words = toQt(pane_.scene().summary);
    return words.isEmpty() ? View::spokenName() : words;
}

QRectF MapView::sheet() const {
    const QSizeF inside(std::max(1, place.box.width() - 2 * kEdge),
                        std::max(1, place.box.height() - 2 * kEdge));
    return {QPointF(kEdge, kEdge), inside};
}

void MapView::stand() {
    const double ratio = devicePixelRatioF();
    pane_.stand({size(), sheet().topLeft(), widget()->size() * ratio, scale().factor * ratio, ratio,
                 actor_.skin().text("caption").font, groundOf(actor_.skin().style("glass.back"))});
}

void MapView::takePlace() {
    PickView::takePlace();
    stand();
}

void MapView::look(const MapSight& sight) {
    fits_ = false;
    pane_.look(sight);
}

void MapView::fit() {
    look(whole(pane_.scene()));
    fits_ = true;
}

void MapView::zoom(double factor, QPointF about) {
    const QPointF at = inSheet(about);
    look(zoomed(sight(), size(), factor, {at.x(), at.y()}));
}

void MapView::resizeEvent(QResizeEvent*) {
    stand();
    if (fits_) pane_.look(whole(pane_.scene()));
}

void MapView::paintEvent(QPaintEvent*) {
    stand(); // the desk may have turned to other colours
    ViewPainter painter(*this, scale());
    const Skin& skin = actor_.skin();
    drawWell(painter, painter.whole(), skin.style("glass.back"), kSocket, skin.style("glass.rim"));
    pane_.paint(painter);
}

PickView::Under MapView::under(QPointF at) const {
    Under found = PickView::under(at);
    for (const auto& route : pane_.scene().routes) {
        if (found.words.isEmpty() && found.id >= 0 && route.id == found.id) found.words = toQt(route.words);
    }
    return found;
}

bool MapView::event(QEvent* event) {
    if (event->type() == QEvent::NativeGesture) {
        pinched(*static_cast<QNativeGestureEvent*>(event));
        return true;
    }
    if (event->type() != QEvent::Gesture) return PickView::event(event);
    auto* gestures = static_cast<QGestureEvent*>(event);
    if (const auto* pinch = static_cast<QPinchGesture*>(gestures->gesture(Qt::PinchGesture))) pinched(*pinch);
    return true;
}

/// Two fingers on the screen. The first of them was taken for a mouse that drags: no longer.
void MapView::pinched(const QPinchGesture& pinch) {
    held_.reset();
    if (pinch.state() == Qt::GestureStarted) spread_ = 1;
    // The last event tells of no move: its own factor is that of the event before.
    const double factor = pinch.totalScaleFactor() / spread_;
    spread_ = pinch.totalScaleFactor();
    if (factor > 0.01 && factor < 100) zoom(factor, inLayout(mapFromGlobal(pinch.centerPoint())));
}

/// Two fingers on a pad, where the desk tells of them.
void MapView::pinched(const QNativeGestureEvent& pinch) {
    if (pinch.gestureType() != Qt::ZoomNativeGesture) return;
    const double factor = 1 + pinch.value();
    if (factor > 0.01 && factor < 100) zoom(factor, inLayout(mapFromGlobal(pinch.globalPosition())));
}

void MapView::mousePressEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return event->ignore();
    held_ = inLayout(event->position());
    dragged_ = false;
}

void MapView::mouseMoveEvent(QMouseEvent* event) {
    if (!held_) return PickView::mouseMoveEvent(event);
    const QPointF way = inLayout(event->position()) - *held_;
    if (!dragged_ && std::hypot(way.x(), way.y()) < kDragFrom) return;
    dragged_ = true;
    look(panned(sight(), size(), way.x(), way.y()));
    held_ = inLayout(event->position());
}

void MapView::mouseReleaseEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton || !held_) return event->ignore();
    held_.reset();
    if (!dragged_) pickAt(inLayout(event->position()));
}

void MapView::mouseDoubleClickEvent(QMouseEvent* event) {
    if (event->button() != Qt::LeftButton) return event->ignore();
    const QPointF at = inSheet(inLayout(event->position()));
    look(centred(sight(), size(), {at.x(), at.y()}));
}

void MapView::wheelEvent(QWheelEvent* event) {
    const double notches = event->angleDelta().y() / static_cast<double>(QWheelEvent::DefaultDeltasPerStep);
    zoom(std::pow(kStep, notches), inLayout(event->position()));
    event->accept();
}

void MapView::keyPressEvent(QKeyEvent* event) {
    const QPointF middle = sheet().center();
    for (const auto& row : kKeys) {
        if (row.key == event->key())
            return look(panned(sight(), size(), row.x * size().width, row.y * size().height));
    }
    switch (event->key()) {
    case Qt::Key_Plus:
    case Qt::Key_Equal:
        return zoom(kStep, middle);
    case Qt::Key_Minus:
        return zoom(1 / kStep, middle);
    case Qt::Key_F:
    case Qt::Key_Home:
        return fit();
    default:
        PickView::keyPressEvent(event);
    }
}

} // namespace gatewise::window
