#pragma once

#include <QImage>
#include <QPolygonF>
#include <QRect>

namespace gatewise::window {

/// Draws a line that bends at its points, with round bends and ends. Line and width are in pixels of the
/// picture, where a pixel's middle lies at its half; the picture is of Format_RGB32, others are left alone.
/// Each pixel within `clip` takes as much of the opaque ink as the line covers of it, measured across a line
/// that lies or stands. A line with a place that is no number, or 1e9 pixels away, is not drawn. A map has
/// thousands of lines: the painter of the toolkit takes three to six times as long for them.
void drawSmoothLine(QImage& picture, const QRect& clip, const QPolygonF& line, double width, QRgb ink);

} // namespace gatewise::window
