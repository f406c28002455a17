#include "window/MapView.h"

#include "window/ChartView.h"
#include "window/Drawing.h"
#include "window/QtText.h"
#include "window/Skin.h"

#include <QFontMetricsF>
#include <QGestureEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>

#include <cmath>

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
    if (mapChart().scene == shown_ && chart().chosen == chosen_) return;
    // Other places are shown whole; another choice, or news of the same places, leaves the map where it is.
    if (!map::samePlaces(mapChart().scene, shown_)) fits_ = true;
    shown_ = mapChart().scene;
    chosen_ = chart().chosen;
    if (fits_) sight_ = fitted(shown_, size());
    draw();
}

QRectF MapView::sheet() const {
    const QSizeF inside(std::max(1, place.box.width() - 2 * kEdge),
                        std::max(1, place.box.height() - 2 * kEdge));
    return {QPointF(kEdge, kEdge), inside};
}

map::Sheet MapView::mapSheet() const {
    const QFontMetricsF metrics(actor_.skin().text("caption").font);
    return {size(), metrics.ascent(),
            [metrics](std::string_view word) { return metrics.horizontalAdvance(toQt(std::string(word))); }};
}

void MapView::draw() {
    drawing_ = drawMap(shown_, sight_, mapSheet(), chosen_);
    update();
}

void MapView::look(const MapSight& sight) {
    sight_ = sight;
    fits_ = false;
    draw();
}

void MapView::fit() {
    look(fitted(shown_, size()));
    fits_ = true;
}

void MapView::zoom(double factor, QPointF about) {
    const QPointF at = inSheet(about);
    look(zoomed(sight_, size(), factor, {at.x(), at.y()}));
}

void MapView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this, scale());
    const Skin& skin = actor_.skin();
    drawWell(painter, painter.whole(), skin.style("glass.back"), kSocket, skin.style("glass.rim"));
    drawDrawing(painter, sheet(), drawing_, skin.text("caption").font);
}

void MapView::resizeEvent(QResizeEvent*) {
    if (fits_) sight_ = fitted(shown_, size());
    draw();
}

PickView::Under MapView::under(QPointF at) const {
    Under found = PickView::under(at);
    for (const auto& route : shown_.routes) {
        if (found.words.isEmpty() && found.id >= 0 && route.id == found.id) found.words = toQt(route.words);
    }
    return found;
}

bool MapView::event(QEvent* event) {
    if (event->type() != QEvent::Gesture) return PickView::event(event);
    auto* gestures = static_cast<QGestureEvent*>(event);
    if (const auto* pinch = static_cast<QPinchGesture*>(gestures->gesture(Qt::PinchGesture))) pinched(*pinch);
    return true;
}

void MapView::pinched(const QPinchGesture& pinch) {
    const double factor = pinch.scaleFactor();
    if (factor > 0.01 && factor < 100) zoom(factor, inLayout(mapFromGlobal(pinch.centerPoint())));
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
    look(panned(sight_, size(), way.x(), way.y()));
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
    look(centred(sight_, size(), {at.x(), at.y()}));
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
            return look(panned(sight_, size(), row.x * size().width, row.y * size().height));
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
