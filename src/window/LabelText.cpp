#include "window/LabelText.h"

#include "window/Tone.h"
#include "window/Witness.h"

#include <QFontMetricsF>
#include <QGlyphRun>

#include <algorithm>
#include <cmath>

namespace gatewise::window {

namespace {

/// Whether the face has all characters of the line.
bool complete(const QRawFont& face, const QString& line) {
    return face.isValid() &&
           std::all_of(line.begin(), line.end(), [&](QChar c) { return face.supportsCharacter(c); });
}

QList<QPointF> advances(const QRawFont& face, const QString& line) {
    return face.advancesForGlyphIndexes(face.glyphIndexesForString(line),
                                        QRawFont::KernedAdvances | QRawFont::UseDesignMetrics);
}

void drawLine(QPainter& painter, QPointF at, const QString& line, const TextStyle& style) {
    if (!complete(style.face, line)) {
        painter.drawText(at, line);
        return;
    }
    QList<QPointF> places;
    QPointF place;
    const auto steps = advances(style.face, line);
    for (const QPointF& step : steps) {
        places << place;
        place += step;
    }
    QGlyphRun run;
    run.setRawFont(style.face);
    run.setGlyphIndexes(style.face.glyphIndexesForString(line));
    run.setPositions(places);
    painter.drawGlyphRun(at, run);
}

/// Breaks at blanks; a word that is too long for a line stands alone and is clipped. Double blanks stay.
QStringList wrapped(const QString& paragraph, const TextStyle& style, double width) {
    QStringList out;
    QString line;
    bool first = true;
    const auto words = paragraph.split(' ');
    for (const QString& word : words) {
        const QString longer = first ? word : line + ' ' + word;
        if (!first && !line.isEmpty() && advance(longer, style) > width) {
            out << line;
            line = word;
        } else {
            line = longer;
        }
        first = false;
    }
    return out << line;
}

/// Cut at the end that the style says, with three dots.
QString cut(const QString& line, const TextStyle& style, double width) {
    if (style.ellipsis == Ellipsis::None || advance(line, style) <= width) return line;
    const QString dots = "...";
    for (qsizetype length = line.size() - 1; length > 0; --length) {
        const QString shorter =
            style.ellipsis == Ellipsis::Left ? dots + line.right(length) : line.left(length).trimmed() + dots;
        if (advance(shorter, style) <= width) return shorter;
    }
    return dots;
}

} // namespace

double advance(const QString& line, const TextStyle& style) {
    if (!complete(style.face, line)) return QFontMetricsF(style.font).horizontalAdvance(line);
    double width = 0;
    const auto steps = advances(style.face, line);
    for (const QPointF& step : steps) width += step.x();
    return width;
}

QStringList linesOf(const QString& text, const TextStyle& style, double width) {
    QStringList all;
    // Blanks at the end pad a record's text and are nothing to show.
    qsizetype length = text.size();
    while (style.wrap && length > 0 && text[length - 1].isSpace()) --length;
    const QStringList paragraphs = text.left(length).split('\n');
    for (const QString& paragraph : paragraphs) {
        if (style.wrap)
            all << wrapped(paragraph, style, width);
        else
            all << paragraph;
    }
    const bool more = style.lines > 0 && all.size() > style.lines;
    if (more) {
        const QString rest = all.mid(style.lines - 1).join(' ');
        all = all.mid(0, style.lines);
        if (style.ellipsis == Ellipsis::Right) all.last() = rest;
    }
    for (QString& line : all) line = cut(line, style, width);
    return all;
}

double firstBaseLine(const TextStyle& style, double height, int lines) {
    const bool segments = style.role.family.startsWith("DSEG");
    const double capitals = style.role.size * (segments ? 1.0 : 0.72);
    if (style.top) return style.role.size * 0.95;
    return (height - (style.role.line * (lines - 1) + capitals)) / 2 + capitals;
}

void drawText(QPainter& painter, const QRectF& box, const QString& text, const TextStyle& style) {
    if (Witness::now != nullptr) Witness::now->text(*painter.device(), text, style.color);
    if (text.isEmpty()) return;
    painter.save();
    painter.setClipRect(box, Qt::IntersectClip);
    painter.setFont(style.font);
    painter.setPen(inkOf(style.color));
    const double scale = painter.worldTransform().m22();
    const QStringList lines = linesOf(text, style, box.width() - 2 * style.pad);
    double base = box.top() + firstBaseLine(style, box.height(), static_cast<int>(lines.size()));
    for (const QString& line : lines) {
        const double width = advance(line, style);
        double x = box.left() + style.pad;
        if (style.align & Qt::AlignHCenter) x = box.left() + (box.width() - width) / 2;
        if (style.align & Qt::AlignRight) x = box.right() - style.pad - width;
        drawLine(painter, QPointF(x, std::round(base * scale) / scale), line, style);
        base += style.role.line;
    }
    painter.restore();
}

} // namespace gatewise::window
