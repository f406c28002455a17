#include "window/ProgressView.h"

#include "window/Drawing.h"
#include "window/Skin.h"
#include "window/Tone.h"

#include <algorithm>

namespace gatewise::window {

ProgressView::ProgressView(Actor& actor, Control* control, const ControlLayout& place, QWidget* parent)
    : QProgressBar(parent), View(actor, control, place) {
    setTextVisible(false);
    setFocusPolicy(Qt::NoFocus);
}

void ProgressView::sync() {
    syncCommon();
    setRange(range().min, range().max);
    if (value() != range().value) setValue(range().value);
}

/// A groove that fills from the left, drawn in the pixels of the layout.
void ProgressView::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this, scale());
    const Skin& skin = actor_.skin();
    const QSizeF box = place.box.size();
    const double share = static_cast<double>(value() - minimum()) / std::max(1, maximum() - minimum());
    drawBox(painter, {0, 0, box.width(), box.height()}, skin.style("slider.groove"),
            highContrast() ? kSocket : QColor(), 3); // black in black shows where it ends
    if (value() > minimum())
        drawBox(painter, {1.5, 1.5, std::max(3.0, (box.width() - 3) * share), box.height() - 3},
                skin.style("slider.fill"), QColor(), 1.5);
}

} // namespace gatewise::window
