#include "window/Drawing.h"

#include "window/Witness.h"

#include <QPainterPath>

namespace gatewise::window {

void drawPicture(QPainter& painter, const QRect& box, const QPixmap& picture) {
    if (Witness::now != nullptr) Witness::now->picture(*painter.device(), picture);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawPixmap(box, picture);
}

void drawBox(QPainter& painter, const QRectF& box, const QColor& fill, const QColor& edge, double radius) {
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(fill.isValid() ? QBrush(fill) : QBrush(Qt::NoBrush));
    const double inset = edge.isValid() ? 0.5 : 0;
    painter.setPen(edge.isValid() ? QPen(edge, 1) : QPen(Qt::NoPen));
    painter.drawRoundedRect(box.adjusted(inset, inset, -inset, -inset), radius, radius);
    painter.restore();
}

void drawWell(QPainter& painter, const QRect& box, const QColor& fill, const QColor& edge,
              const QColor& rim) {
    drawBox(painter, box, fill, edge, 3);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(rim, 1));
    const double y = box.y() + box.height() + 0.5;
    painter.drawLine(QPointF(box.x() + 3, y), QPointF(box.x() + box.width() - 3, y));
    painter.restore();
}

void drawField(QPainter& painter, const QRect& box, const QColor& fill, const QColor& edge) {
    drawBox(painter, box, fill, edge, 2);
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(kFieldShade, 1));
    painter.drawLine(QPointF(box.x() + 2, box.y() + 1.5), QPointF(box.x() + box.width() - 2, box.y() + 1.5));
    painter.restore();
}

void drawFrame(QPainter& painter, const QRect& box, double heading, const QColor& line) {
    const QRectF r = QRectF(box).adjusted(0.5, 0.5, -0.5, -0.5);
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
    painter.setPen(QPen(line, 1));
    painter.setBrush(Qt::NoBrush);
    painter.drawPath(path);
    painter.restore();
}

} // namespace gatewise::window
