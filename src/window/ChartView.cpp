#include "window/ChartView.h"

#include "window/Drawing.h"
#include "window/LabelText.h"
#include "window/QtText.h"
#include "window/Skin.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace gatewise::window {

namespace {

struct ToneLook {
    Tone tone;
    QColor screen, paper;
    double width;  // of a line, pixels
    double radius; // of a mark, pixels
};

const ToneLook& look(Tone tone) {
    static const ToneLook kLooks[] = {
        {Tone::Grid, QColor(0x22, 0x2B, 0x33), QColor(0xCC, 0xCC, 0xCC), 1, 0},
        {Tone::Route, QColor(0x00, 0xC8, 0xD2), QColor(0x30, 0x30, 0x30), 2, 0},
        {Tone::Airport, QColor(0xFF, 0xC5, 0x31), QColor(0, 0, 0), 2, 5},
        {Tone::Fix, QColor(0xA6, 0xB6, 0xC4), QColor(0x50, 0x50, 0x50), 1, 2.5},
        {Tone::Top, QColor(0x00, 0xFF, 0xFF), QColor(0, 0, 0), 1, 4},
        {Tone::Step, QColor(0x00, 0xFF, 0x00), QColor(0x20, 0x20, 0x20), 1, 3},
    };
    for (const auto& row : kLooks) {
        if (row.tone == tone) return row;
    }
    return kLooks[0];
}

void drawMark(QPainter& painter, const QPointF& at, const DrawingMark& mark, const ToneLook& tone,
              const QColor& ink, const QRectF& box) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    if (mark.tone == Tone::Top || mark.tone == Tone::Step) {
        const double r = tone.radius;
        painter.drawPolygon(
            QPolygonF({at + QPointF(0, -r), at + QPointF(r, 0), at + QPointF(0, r), at + QPointF(-r, 0)}));
    } else {
        painter.drawEllipse(at, tone.radius, tone.radius);
    }
    if (mark.label.empty()) return;
    const QString text = toQt(mark.label);
    const QFontMetricsF metrics(painter.font());
    const double width = metrics.horizontalAdvance(text);
    const double x = std::max(box.left() + 2, std::min(at.x() - width / 2, box.right() - width - 2));
    const double above = at.y() - tone.radius - 3;
    const double y =
        above - metrics.ascent() < box.top() ? at.y() + tone.radius + metrics.ascent() + 1 : above;
    painter.setPen(ink);
    painter.drawText(QPointF(x, y), text);
}

} // namespace

void drawDrawing(QPainter& painter, const QRectF& box, const Drawing& drawing, const QFont& font,
                 bool paper) {
    QRectF sheet = box;
    if (drawing.square) {
        const double side = std::min(box.width(), box.height());
        sheet = QRectF(box.center().x() - side / 2, box.center().y() - side / 2, side, side);
    }
    const auto place = [&](const DrawingPoint& p) {
        return QPointF(sheet.left() + p.x * sheet.width(), sheet.top() + p.y * sheet.height());
    };
    painter.save();
    painter.setClipRect(box);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(font);
    for (const auto& line : drawing.lines) {
        const ToneLook& tone = look(line.tone);
        QPen pen(paper ? tone.paper : tone.screen, tone.width);
        pen.setJoinStyle(Qt::RoundJoin);
        painter.setPen(pen);
        QPolygonF points;
        for (const auto& p : line.points) points << place(p);
        painter.drawPolyline(points);
    }
    painter.setPen(paper ? QColor(0x40, 0x40, 0x40) : QColor(0xA6, 0xB6, 0xC4));
    const QFontMetricsF metrics(font);
    for (const auto& word : drawing.texts) {
        const QString text = toQt(word.text);
        QPointF at = place(word.at);
        at.ry() += metrics.ascent() * 0.36;
        if (word.leftOf)
            at.rx() -= metrics.horizontalAdvance(text);
        else
            at.rx() -= metrics.horizontalAdvance(text) / 2;
        painter.drawText(at, text);
    }
    for (const auto& mark : drawing.marks) {
        const ToneLook& tone = look(mark.tone);
        drawMark(painter, place(mark.at), mark, tone, paper ? tone.paper : tone.screen, box);
    }
    painter.restore();
}

void ChartView::sync() {
    syncCommon();
    const Drawing& now = chart().drawing;
    if (now == shown_) return;
    shown_ = now;
    update();
}

QString ChartView::spokenName() const {
    const QString words = toQt(chart().drawing.summary);
    return words.isEmpty() ? View::spokenName() : words;
}

void ChartView::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    drawWell(painter, rect().adjusted(0, 0, 0, -1), QColor(0x05, 0x07, 0x09), kSocket,
             QColor(0x39, 0x43, 0x4D));
    drawDrawing(painter, QRectF(rect()).adjusted(2, 2, -2, -3), shown_, actor_.skin().text("caption").font,
                false);
}

} // namespace gatewise::window
