#include "window/ChartView.h"

#include "window/Drawing.h"
#include "window/LabelText.h"
#include "window/QtText.h"
#include "window/Skin.h"
#include "window/Tone.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <iterator>
#include <optional>
#include <vector>

namespace gatewise::window {

namespace {

struct ToneLook {
    Tone tone;
    QColor screen, strong, paper; // strong: on the screen in high contrast
    double width;                 // of a line, pixels of the screen
    double radius;                // of a mark, pixels of the screen
};

const ToneLook& look(Tone tone) {
    static const ToneLook kLooks[] = {
        {Tone::Grid, QColor(0x22, 0x2B, 0x33), QColor(0x6F, 0x7C, 0x88), QColor(0xCC, 0xCC, 0xCC), 1, 0},
        {Tone::Route, QColor(0x00, 0xC8, 0xD2), QColor(0x00, 0xFF, 0xFF), QColor(0x30, 0x30, 0x30), 2, 0},
        {Tone::Airport, QColor(0xFF, 0xC5, 0x31), QColor(0xFF, 0xC5, 0x31), QColor(0, 0, 0), 2, 5},
        {Tone::Fix, QColor(0xA6, 0xB6, 0xC4), QColor(0xFF, 0xFF, 0xFF), QColor(0x50, 0x50, 0x50), 1, 2.5},
        {Tone::Top, QColor(0x00, 0xFF, 0xFF), QColor(0x00, 0xFF, 0xFF), QColor(0, 0, 0), 1, 4},
        {Tone::Step, QColor(0x00, 0xFF, 0x00), QColor(0x00, 0xFF, 0x00), QColor(0x20, 0x20, 0x20), 1, 3},
        {Tone::Water, QColor(0x0A, 0x0D, 0x10), QColor(0, 0, 0), QColor(0xFF, 0xFF, 0xFF), 0, 0},
        {Tone::Land, QColor(0x1B, 0x21, 0x27), QColor(0, 0, 0), QColor(0xEE, 0xEE, 0xEE), 0, 0},
        {Tone::Coast, QColor(0x4A, 0x57, 0x63), QColor(0xC5, 0xD0, 0xDA), QColor(0x99, 0x99, 0x99), 1, 0},
        {Tone::Border, QColor(0x33, 0x3D, 0x46), QColor(0x84, 0x91, 0xA0), QColor(0xBB, 0xBB, 0xBB), 1, 0},
        {Tone::Vor, QColor(0xA6, 0xB6, 0xC4), QColor(0xFF, 0xFF, 0xFF), QColor(0x40, 0x40, 0x40), 1, 4},
        {Tone::Ndb, QColor(0xA6, 0xB6, 0xC4), QColor(0xFF, 0xFF, 0xFF), QColor(0x40, 0x40, 0x40), 1, 4},
        {Tone::Alternate, QColor(0xC5, 0xD0, 0xDA), QColor(0xFF, 0xFF, 0xFF), QColor(0x60, 0x60, 0x60), 1, 4},
        {Tone::Flight, QColor(0x00, 0xA4, 0xAE), QColor(0x00, 0xFF, 0xFF), QColor(0x30, 0x30, 0x30), 1, 3},
        {Tone::Other, QColor(0x56, 0x63, 0x6F), QColor(0xA6, 0xB6, 0xC4), QColor(0x99, 0x99, 0x99), 1, 2.5},
        {Tone::Runway, QColor(0xFF, 0xFF, 0xFF), QColor(0xFF, 0xFF, 0xFF), QColor(0, 0, 0), 3, 0},
        {Tone::Chosen, QColor(0xFF, 0xFF, 0xFF), QColor(0xFF, 0xFF, 0xFF), QColor(0, 0, 0), 2.5, 6},
        {Tone::Level, QColor(0xA6, 0xB6, 0xC4), QColor(0xFF, 0xFF, 0xFF), QColor(0x40, 0x40, 0x40), 1, 0},
        {Tone::Bar, QColor(0x0E, 0x5A, 0x63), QColor(0x00, 0x8C, 0x96), QColor(0x80, 0x80, 0x80), 1, 0},
    };
    for (const auto& row : kLooks) {
        if (row.tone == tone) return row;
    }
    return kLooks[0];
}

QColor colorOf(const ToneLook& look, bool paper) {
    return paper ? look.paper : highContrast() ? look.strong : look.screen;
}

/// In high contrast the coasts are as bright as the words: these stand on a ground of their own.
void drawWord(QPainter& painter, const QPointF& at, const QString& word, const QColor& ink, bool paper) {
    if (!paper && highContrast()) {
        const QRectF box = QFontMetricsF(painter.font(), painter.device()).tightBoundingRect(word);
        painter.fillRect(box.translated(at).adjusted(-1, -1, 1, 1), Qt::black);
    }
    painter.setPen(ink);
    painter.drawText(at, word);
}

/// Finds room for the words of a chart: beside their mark, off each other and, where it can be, off the
/// route.
class Words {
public:
    Words(const QRectF& box, const QFontMetricsF& metrics, double pixel)
        : box_(box), metrics_(metrics), pixel_(pixel) {}

    void keepOff(const QPolygonF& route) {
        for (qsizetype i = 1; i < route.size(); ++i) route_.emplace_back(route[i - 1], route[i]);
    }
    void keepOff(const QRectF& taken) { taken_.push_back(taken); }

    /// Where the base line of the word begins; nothing when there is no room.
    std::optional<QPointF> place(const QPointF& mark, double radius, const QString& word) {
        const double width = metrics_.horizontalAdvance(word);
        const double height = metrics_.ascent();
        const double gap = radius + 2 * pixel_;
        // Above, below, to the right, to the left, then the corners between them.
        const QPointF corners[] = {
            mark + QPointF(-width / 2, -gap - height),
            mark + QPointF(-width / 2, gap),
            mark + QPointF(gap + pixel_, -height / 2),
            mark + QPointF(-gap - pixel_ - width, -height / 2),
            mark + QPointF(radius, gap),
            mark + QPointF(-radius - width, gap),
            mark + QPointF(radius, -gap - height),
            mark + QPointF(-radius - width, -gap - height),
        };
        std::optional<QRectF> second;
        for (const QPointF& corner : corners) {
            const QRectF at(corner, QSizeF(width, height));
            if (!isFree(at)) continue;
            if (!crosses(at)) return take(at);
            if (!second) second = at;
        }
        if (second) return take(*second);
        return std::nullopt;
    }

private:
    QPointF take(const QRectF& at) {
        taken_.push_back(at);
        return at.bottomLeft();
    }
    [[nodiscard]] bool isFree(const QRectF& at) const {
        return box_.contains(at) && std::none_of(taken_.begin(), taken_.end(),
                                                 [&](const QRectF& other) { return other.intersects(at); });
    }
    [[nodiscard]] bool crosses(const QRectF& at) const {
        const QLineF edges[] = {{at.topLeft(), at.topRight()},
                                {at.topRight(), at.bottomRight()},
                                {at.bottomRight(), at.bottomLeft()},
                                {at.bottomLeft(), at.topLeft()}};
        return std::any_of(route_.begin(), route_.end(), [&](const QLineF& leg) {
            return at.contains(leg.p1()) ||
                   std::any_of(std::begin(edges), std::end(edges), [&](const QLineF& edge) {
                       return leg.intersects(edge, nullptr) == QLineF::BoundedIntersection;
                   });
        });
    }

    QRectF box_;
    QFontMetricsF metrics_;
    double pixel_;
    std::vector<QRectF> taken_;
    std::vector<QLineF> route_;
};

void drawMark(QPainter& painter, const QPointF& at, Tone kind, double radius, const QColor& ink) {
    painter.setPen(Qt::NoPen);
    painter.setBrush(ink);
    if (kind == Tone::Vor) {
        // The six corners of its symbol on a chart, the point in the middle of them.
        QPolygonF corners;
        for (int i = 0; i < 6; ++i)
            corners << at + QPointF(radius * std::cos(i * M_PI / 3), radius * std::sin(i * M_PI / 3));
        painter.setPen(QPen(ink, 1));
        painter.setBrush(Qt::NoBrush);
        painter.drawPolygon(corners);
        painter.drawPoint(at);
    } else if (kind == Tone::Ndb) {
        painter.setPen(QPen(ink, 1, Qt::DotLine));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(at, radius, radius);
        painter.drawPoint(at);
    } else if (kind == Tone::Chosen) {
        // A ring around the point, so that what stands there is seen.
        painter.setPen(QPen(ink, radius / 3));
        painter.setBrush(Qt::NoBrush);
        painter.drawEllipse(at, radius, radius);
        painter.setPen(Qt::NoPen);
        painter.setBrush(ink);
        painter.drawEllipse(at, radius / 3, radius / 3);
    } else if (kind == Tone::Top || kind == Tone::Step) {
        painter.drawPolygon(QPolygonF({at + QPointF(0, -radius), at + QPointF(radius, 0),
                                       at + QPointF(0, radius), at + QPointF(-radius, 0)}));
    } else {
        painter.drawEllipse(at, radius, radius);
    }
}

template<class Place> void drawAreas(QPainter& painter, const Drawing& drawing, Place place, bool paper) {
    painter.setPen(Qt::NoPen);
    painter.setRenderHint(QPainter::Antialiasing, paper);
    for (const auto& area : drawing.areas) {
        QPainterPath path;
        path.setFillRule(Qt::OddEvenFill);
        for (const auto& ring : area.rings) {
            QPolygonF points;
            points.reserve(static_cast<qsizetype>(ring.size()));
            for (const auto& p : ring) points << place(p);
            path.addPolygon(points);
        }
        painter.fillPath(path, colorOf(look(area.tone), paper));
    }
    painter.setRenderHint(QPainter::Antialiasing);
}

/// The words that have their places already; those of marks keep off them.
template<class Place>
void drawTexts(QPainter& painter, const Drawing& drawing, Place place, bool paper,
               const QFontMetricsF& metrics, Words& words) {
    for (const auto& word : drawing.texts) {
        const ToneLook& tone = look(word.tone == Tone::Grid ? Tone::Level : word.tone);
        const QString text = toQt(word.text);
        QPointF at = place(word.at);
        at.ry() += metrics.ascent() * 0.36;
        if (word.leftOf)
            at.rx() -= metrics.horizontalAdvance(text);
        else
            at.rx() -= metrics.horizontalAdvance(text) / 2;
        drawWord(painter, at, text, colorOf(tone, paper), paper);
        words.keepOff(
            QRectF(at.x(), at.y() - metrics.ascent(), metrics.horizontalAdvance(text), metrics.ascent()));
    }
}

} // namespace

void drawDrawing(QPainter& painter, const QRectF& box, const Drawing& drawing, const QFont& font,
                 double point, const LineWay& solid) {
    constexpr double kPixel = 0.75; // points
    const bool paper = point > 0;
    const double pixel = paper ? kPixel * point : 1;
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
    const QFontMetricsF metrics(font, painter.device());
    Words words(box, metrics, pixel);
    drawAreas(painter, drawing, place, paper);
    for (const auto& line : drawing.lines) {
        const ToneLook& tone = look(line.tone);
        QPen pen(colorOf(tone, paper), (line.width > 0 ? line.width : tone.width) * pixel);
        pen.setJoinStyle(Qt::RoundJoin);
        if (line.tone == Tone::Alternate) pen.setStyle(Qt::DashLine);
        QPolygonF points;
        points.reserve(static_cast<qsizetype>(line.points.size()));
        for (const auto& p : line.points) points << place(p);
        painter.setPen(pen);
        if (solid && pen.style() == Qt::SolidLine)
            solid(points, pen);
        else
            painter.drawPolyline(points);
        if (line.tone == Tone::Route) words.keepOff(points);
    }
    drawTexts(painter, drawing, place, paper, metrics, words);
    for (const auto& mark : drawing.marks) {
        const ToneLook& tone = look(mark.tone);
        const QPointF at = place(mark.at);
        const double radius = tone.radius * pixel;
        drawMark(painter, at, mark.tone, radius, colorOf(tone, paper));
        words.keepOff(QRectF(at.x() - radius, at.y() - radius, 2 * radius, 2 * radius));
    }
    for (const auto& mark : drawing.marks) {
        if (drawing.worded) break;
        const ToneLook& tone = look(mark.tone);
        const QString word = toQt(mark.label);
        const auto at = words.place(place(mark.at), tone.radius * pixel, word);
        if (word.isEmpty() || !at) continue;
        drawWord(painter, *at, word, colorOf(tone, paper), paper);
    }
    painter.restore();
}

void ChartView::sync() {
    syncCommon();
    Drawing now = chart().whole();
    if (now == shown_) return;
    shown_ = std::move(now);
    update();
}

void ChartView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this, scale());
    const Skin& skin = actor_.skin();
    drawWell(painter, painter.whole().adjusted(0, 0, 0, -1), skin.style("glass.back"), kSocket,
             skin.style("glass.rim"));
    drawDrawing(painter, sheet(), shown_, skin.text("caption").font);
}

} // namespace gatewise::window
