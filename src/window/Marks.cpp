#include "window/Marks.h"

#include "window/Tone.h"

namespace gatewise::window {

namespace {

const QColor kWhereYouAre(0xFF, 0xC5, 0x31);
const QColor kAsleep(0x4A, 0x55, 0x5F);
constexpr int kLine = 2;    // height of the line under a page's name
constexpr int kInset = 10;  // of the line from both edges
constexpr double kTip = 4;  // half width of the arrow
constexpr double kEdge = 6; // its middle from the right edge

void drawArrow(QPainter& painter, const QRect& box, const QColor& color) {
    const double x = box.right() - kEdge;
    const double y = box.center().y() + 1.0;
    const QPointF arrow[] = {{x - kTip, y - 2}, {x + kTip, y - 2}, {x, y + 3}};
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawPolygon(arrow, 3);
    painter.restore();
}

} // namespace

bool sortsTable(const Control& control) {
    return control.kind == Kind::Label && control.handles(Event::DoubleClick) &&
           !control.handles(Event::RightPress);
}

void drawMark(QPainter& painter, const QRect& box, const Label& label) {
    if (label.mark == Mark::Current)
        painter.fillRect(box.left() + kInset, box.bottom() - kLine, box.width() - 2 * kInset, kLine,
                         kWhereYouAre);
    else if (sortsTable(label))
        drawArrow(painter, box, label.mark == Mark::Sorted ? kWhereYouAre : edgeOf(kAsleep));
}

} // namespace gatewise::window
