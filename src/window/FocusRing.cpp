#include "window/FocusRing.h"

#include "window/Drawing.h"

namespace gatewise::window {

FocusRing::FocusRing(QWidget* window) : QWidget(window) {
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
    setGeometry(box.adjusted(-1, -1, 1, 1));
    // Only the ring itself: what lies inside keeps its own painting.
    setMask(QRegion(rect()) - QRegion(rect().adjusted(3, 3, -3, -3)));
    raise();
    show();
    update();
}

void FocusRing::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    QColor halo = kCyan;
    halo.setAlphaF(0.35F);
    drawBox(painter, rect(), QColor(), halo, 3);
    drawBox(painter, rect().adjusted(1, 1, -1, -1), QColor(), kCyan, 2);
}

} // namespace gatewise::window
