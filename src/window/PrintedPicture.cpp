#include "window/PrintedPicture.h"

#include "window/ChartView.h"
#include "window/PrintedPages.h"

#include <QFontMetricsF>
#include <QPainter>

#include <algorithm>
#include <limits>

namespace gatewise::window {

namespace {

constexpr double kDots = 300; // to the inch
constexpr double kPoint = kDots / 72;
constexpr int kWidth = 2480;      // of A4
constexpr int kEdge = 175;        // the margin of paper
constexpr double kAspect = 1.6;   // of a drawing that has none
constexpr int kMostLines = 10000; // a picture higher than that no program opens

QImage whitePaper(int height) {
    QImage image(kWidth, height, QImage::Format_RGB32);
    image.setDotsPerMeterX(qRound(kDots / 0.0254));
    image.setDotsPerMeterY(image.dotsPerMeterX());
    image.fill(Qt::white);
    return image;
}

} // namespace

QImage pictureOf(const QFont& font, const QString& text, const std::vector<Drawing>& drawings) {
    const QImage measure = whitePaper(1);
    const QFontMetricsF metrics(font, &measure);
    const double line = metrics.lineSpacing();
    constexpr double kRoom = kWidth - 2 * kEdge;
    const int columns = std::max(1, static_cast<int>(kRoom / metrics.horizontalAdvance('0')));
    const QStringList lines =
        sheetsOf(text, columns, std::numeric_limits<int>::max()).front().mid(0, kMostLines);
    std::vector<Drawing> kept = drawings;
    double charts = 0;
    for (Drawing& drawing : kept) {
        if (drawing.aspect <= 0) drawing.aspect = kAspect;
        charts += kRoom / drawing.aspect + line;
    }
    QImage image = whitePaper(qRound(charts + line * static_cast<double>(lines.size())) + 2 * kEdge);
    QPainter painter;
    if (image.isNull() || !painter.begin(&image)) return {};
    painter.setFont(font);
    painter.translate(kEdge, kEdge);
    const auto boxes = chartBoxes(kept, {kRoom, charts + 1}, line);
    for (std::size_t i = 0; i < kept.size(); ++i) drawDrawing(painter, boxes[i], kept[i], font, kPoint);
    painter.setPen(Qt::black);
    double y = charts + metrics.ascent();
    for (const QString& one : lines) {
        painter.drawText(QPointF(0, y), one);
        y += line;
    }
    return image;
}

} // namespace gatewise::window
