#include "window/Drawing.h"

#include "window/Tone.h"
#include "window/Witness.h"

#include <QPainterPath>
#include <QWidget>

#include <algorithm>
#include <cmath>

namespace gatewise::window {

ViewPainter::ViewPainter(QWidget& widget, const Zoom& zoom)
    : QPainter(&widget), whole_(QPointF(0, 0), QSizeF(widget.size()) / zoom.factor) {
    if (zoom.factor != 1) scale(zoom.factor, zoom.factor);
}

QRectF onPixels(const QPainter& painter, const QRectF& box) {
    const QTransform& way = painter.worldTransform();
    if (way.type() != QTransform::TxScale) return box;
    const QRectF desk = way.mapRect(box);
    const QPointF from(std::round(desk.left()), std::round(desk.top()));
    const QPointF to(std::round(desk.right()), std::round(desk.bottom()));
    return way.inverted().mapRect(QRectF(from, to));
}

double hairline(const QPainter& painter) {
    const double scale = painter.worldTransform().m11();
    return std::max(1.0, std::round(scale)) / scale;
}

void drawPicture(QPainter& painter, const QRectF& box, const QPixmap& picture) {
    if (Witness::now != nullptr) Witness::now->picture(*painter.device(), picture);
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    const QRect desk = painter.worldTransform().mapRect(box).toRect();
    painter.resetTransform();
    painter.drawPixmap(desk, picture);
    painter.restore();
}

void drawBox(QPainter& painter, const QRectF& wanted, const QColor& fill, const QColor& edge, double radius) {
    const QRectF box = onPixels(painter, wanted);
    const double line = hairline(painter);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(fill.isValid() ? QBrush(groundOf(fill)) : QBrush(Qt::NoBrush));
    const double inset = edge.isValid() ? line / 2 : 0;
    painter.setPen(edge.isValid() ? QPen(edgeOf(edge), line) : QPen(Qt::NoPen));
    painter.drawRoundedRect(box.adjusted(inset, inset, -inset, -inset), radius, radius);
    painter.restore();
}

void drawWell(QPainter& painter, const QRectF& wanted, const QColor& fill, const QColor& edge,
              const QColor& rim) {
    const QRectF box = onPixels(painter, wanted);
    const double line = hairline(painter);
    drawBox(painter, box, fill, edge, 3);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(groundOf(rim), line));
    const double y = box.bottom() + line / 2;
    painter.drawLine(QPointF(box.x() + 3, y), QPointF(box.right() - 3, y));
    painter.restore();
}

void drawField(QPainter& painter, const QRectF& wanted, const QColor& fill, const QColor& edge) {
    const QRectF box = onPixels(painter, wanted);
    const double line = hairline(painter);
    drawBox(painter, box, fill, edge, 2);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(kFieldShade, line));
    const double y = box.y() + 1.5 * line;
    painter.drawLine(QPointF(box.x() + 2, y), QPointF(box.right() - 2, y));
    painter.restore();
}

void drawFrame(QPainter& painter, const QRectF& wanted, double heading, const QColor& line) {
    const double width = hairline(painter);
    const double half = width / 2;
    const QRectF r = onPixels(painter, wanted).adjusted(half, half, -half, -half);
    constexpr double k = 4;
    QPainterPath path(QPointF(r.left() + 17.5 + heading, r.top()));
    path.lineTo(r.right() - k, r.top());
    path.quadTo(r.topRight(), QPointF(r.right(), r.top() + k));
    path.lineTo(r.right(), r.bottom() - k);
    path.quadTo(r.bottomRight(), QPointF(r.right() - k, r.bottom()));
    path.lineTo(r.left() + k, r.bottom());
    path.quadTo(r.bottomLeft(), QPointF(r.left(), r.bottom() - k));
    path.lineTo(r.left(), r.top() + k);
    path.quadTo(r.topLeft(), QPointF(r.left() + k, r.top()));
    path.lineTo(r.left() + 7.5, r.top());
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(edgeOf(line), width));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(path);
    painter.restore();
}

} // namespace gatewise::window
