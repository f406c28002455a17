#pragma once

#include "window/PickView.h"

namespace gatewise::window {

class Skin;

/// Draws a drawing into a box: on the screen in the look's colours, on paper in black and grey. `point` is
/// how many units of the painter make a point of paper, 0 on the screen. Texts are measured on the painter's
/// device.
void drawDrawing(QPainter& painter, const QRectF& box, const Drawing& drawing, const QFont& font,
                 double point = 0);

/// A drawing of the program's own data on black glass.
class ChartView : public PickView {
    Q_OBJECT
public:
    using PickView::PickView;
    void sync() override;

protected:
    void paintEvent(QPaintEvent* event) override;
    [[nodiscard]] const Drawing& painted() const override { return shown_; }
    [[nodiscard]] QRectF sheet() const override {
        return QRectF(QPointF(0, 0), place.box.size()).adjusted(2, 2, -2, -3);
    }

private:
    Drawing shown_;
};

} // namespace gatewise::window
