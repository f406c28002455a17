#include "window/DisplayKey.h"

#include "window/Buttons.h"
#include "window/Drawing.h"
#include "window/Skin.h"

#include <QKeyEvent>

namespace gatewise::window {

DisplayKey::DisplayKey(Actor& actor, const ControlLayout& place, QWidget* parent)
    : QPushButton(QString::fromStdString(place.text), parent), View(actor, nullptr, place) {
    setMouseTracking(true);
    setToolTip("Size and colours of the windows");
}

void DisplayKey::keyPressEvent(QKeyEvent* event) {
    if (isEnter(*event))
        activate();
    else
        QPushButton::keyPressEvent(event);
}

void DisplayKey::paintEvent(QPaintEvent*) {
    ViewPainter painter(*this, scale());
    drawKey(painter, painter.whole(), text(), actor_.skin(), underMouse() || isDown(), isEnabled());
}

} // namespace gatewise::window
