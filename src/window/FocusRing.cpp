#include "window/FocusRing.h"

#include "window/Drawing.h"

#include <algorithm>

namespace gatewise::window {

FocusRing::FocusRing(QWidget* window, const Zoom& zoom) : QWidget(window), zoom_(zoom) {
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

void FocusRing::surround(const QRect& box) {
    if (box == box_ && isVisible() == !box.isEmpty()) return;
    box_ = box;
    if (box.isEmpty()) {
        hide();
        return;
    }
    const int line = std::max(1, zoom_.edge(1));
    setGeometry(box.adjusted(-line, -line, line, line));
    // Only the ring itself: what lies inside keeps its own painting.
    setMask(QRegion(rect()) - QRegion(rect().adjusted(3 * line, 3 * line, -3 * line, -3 * line)));
    raise();
    show();
    update();
}

void FocusRing::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this, zoom_);
    QColor halo = kCyan;
    halo.setAlphaF(0.35F);
    drawBox(painter, painter.whole(), QColor(), halo, 3);
    const double line = hairline(painter);
    drawBox(painter, painter.whole().adjusted(line, line, -line, -line), QColor(), kCyan, 2);
}

} // namespace gatewise::window
