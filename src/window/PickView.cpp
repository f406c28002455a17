#include "window/PickView.h"

#include "input/UserEvents.h"
#include "map/MapDrawing.h"
#include "window/QtText.h"

#include <QHelpEvent>
#include <QMouseEvent>
#include <QToolTip>

namespace gatewise::window {

namespace {

constexpr double kNear = 8; // pixels from the pointer to what it means
constexpr Event kEvents[] = {Event::Pick, Event::Hover};

} // namespace

QString PickView::spokenName() const {
    const QString words = toQt(painted().summary);
    return words.isEmpty() ? View::spokenName() : words;
}

std::span<const Event> PickView::emits() const {
    return kEvents;
}

PickView::Under PickView::under(QPointF at) const {
    const QPointF p = inSheet(at);
    const DrawingPoint point{p.x() / size().width, p.y() / size().height};
    if (const auto* mark = map::markNear(painted(), size(), point, kNear))
        return {mark->id, toQt(mark->words)};
    if (const auto* line = map::lineNear(painted(), size(), point, kNear / 2)) return {line->id, {}};
    return {};
}

std::optional<QPoint> PickView::pointOf(int id) const {
    const QRectF box = sheet();
    const auto meant = [&](const DrawingPoint& p) -> std::optional<QPoint> {
        const QPointF at = box.topLeft() + QPointF(p.x * box.width(), p.y * box.height());
        const QPoint pixel = (at * scale().factor).toPoint();
        if (!box.contains(at) || under(inLayout(pixel)).id != id) return std::nullopt;
        return pixel;
    };
    for (const auto& mark : painted().marks) {
        if (mark.id != id) continue;
        if (const auto pixel = meant(mark.at)) return pixel;
    }
    // Of a route any place between its points that no mark and no other route covers.
    for (const auto& line : painted().lines) {
        if (line.id != id) continue;
        for (std::size_t i = 1; i < line.points.size(); ++i) {
            const DrawingPoint& a = line.points[i - 1];
            const DrawingPoint& b = line.points[i];
            if (const auto pixel = meant({(a.x + b.x) / 2, (a.y + b.y) / 2})) return pixel;
        }
    }
    return std::nullopt;
}

void PickView::pointAt(int id) {
    if (id == pointed_) return;
    pointed_ = id;
    setCursor(id >= 0 && control->handles(Event::Pick) ? Qt::PointingHandCursor : Qt::ArrowCursor);
    if (control->handles(Event::Hover)) actor_.act([&] { user::pointAt(chart(), id); });
}

void PickView::pickAt(QPointF at) {
    const int id = under(at).id;
    if (id >= 0 && control->handles(Event::Pick)) actor_.act([&] { user::pickOf(chart(), id); });
}

bool PickView::event(QEvent* event) {
    if (event->type() != QEvent::ToolTip) return PaintedView::event(event);
    const auto* help = static_cast<QHelpEvent*>(event);
    QToolTip::showText(help->globalPos(), under(inLayout(help->pos())).words, this);
    return true;
}

void PickView::mousePressEvent(QMouseEvent* event) {
    held_ = event->button() == Qt::LeftButton && under(inLayout(event->position())).id >= 0;
    if (!held_) event->ignore(); // the ground below drags the window
}

void PickView::mouseReleaseEvent(QMouseEvent* event) {
    if (!held_ || event->button() != Qt::LeftButton) return event->ignore();
    held_ = false;
    pickAt(inLayout(event->position()));
}

void PickView::mouseMoveEvent(QMouseEvent* event) {
    if (event->buttons().testFlag(Qt::LeftButton)) return event->ignore();
    pointAt(under(inLayout(event->position())).id);
}

void PickView::leaveEvent(QEvent*) {
    pointAt(-1);
}

} // namespace gatewise::window
