#pragma once

#include "window/Zoom.h"

#include <QColor>
#include <QPainter>
#include <QPixmap>

// The few shapes that all controls are drawn from.

namespace gatewise::window {

inline const QColor kPanel(0x1B, 0x21, 0x27);
inline const QColor kSocket(0x07, 0x09, 0x0B);
inline const QColor kDisabledText(0x84, 0x91, 0xA0);
inline const QColor kMarkEdge(0xE9, 0xA8, 0x00);
inline const QColor kCyan(0x00, 0xFF, 0xFF);
inline const QColor kFieldShade(0x9A, 0xA6, 0xB0); // inner upper edge of a light field

/// Paints on a widget in the pixels of the layout, whatever the zoom.
class ViewPainter : public QPainter {
public:
    ViewPainter(QWidget& widget, const Zoom& zoom);
    /// The whole widget.
    [[nodiscard]] QRectF whole() const { return whole_; }

private:
    QRectF whole_;
};

/// The box with its edges on pixels of the desk.
QRectF onPixels(const QPainter& painter, const QRectF& box);
/// Width of a thin line: whole pixels of the desk, one at the size of the layout.
double hairline(const QPainter& painter);

/// A picture that has the size of its box on the desk is shown pixel by pixel.
void drawPicture(QPainter& painter, const QRectF& box, const QPixmap& picture);

/// A filled box with a thin edge (none when `edge` is invalid).
void drawBox(QPainter& painter, const QRectF& box, const QColor& fill, const QColor& edge, double radius);

/// A dark box with a light line below.
void drawWell(QPainter& painter, const QRectF& box, const QColor& fill, const QColor& edge,
              const QColor& rim);

/// A light box to type or choose in.
void drawField(QPainter& painter, const QRectF& box, const QColor& fill, const QColor& edge);

/// The line of a frame with room for a heading of that width.
void drawFrame(QPainter& painter, const QRectF& box, double heading, const QColor& line);

} // namespace gatewise::window
