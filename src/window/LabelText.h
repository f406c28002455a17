#pragma once

#include "window/Layout.h"

#include <QFont>
#include <QPainter>
#include <QRawFont>
#include <QStringList>

namespace gatewise::window {

/// How a text stands in its box. Lines are centred on their capitals.
struct TextStyle {
    QFont font;
    QRawFont face; // where `font` would find another face than the wanted one: this; else invalid
    FontRole role;
    QColor color;
    Qt::Alignment align = Qt::AlignLeft;
    bool top = false;
    bool wrap = false;
    int lines = 0;
    Ellipsis ellipsis = Ellipsis::None;
    double pad = 0; // from the left and right edge
};

/// Width of a line.
double advance(const QString& line, const TextStyle& style);

/// The lines that a text shows in a box of that width: broken at line feeds and, with `wrap`, at blanks.
QStringList linesOf(const QString& text, const TextStyle& style, double width);

/// Base line of the first of so many lines in a box of that height.
double firstBaseLine(const TextStyle& style, double height, int lines);

/// Draws the text clipped to its box.
void drawText(QPainter& painter, const QRectF& box, const QString& text, const TextStyle& style);

} // namespace gatewise::window
