#pragma once

#include "window/View.h"

namespace gatewise::window {

class Skin;

/// Draws a drawing into a box: on the screen in the look's colours, on paper in black and grey. `point` is
/// how many units of the painter make a point of paper, 0 on the screen. Texts are measured on the painter's
/// device.
void drawDrawing(QPainter& painter, const QRectF& box, const Drawing& drawing, const QFont& font,
                 double point = 0);

/// A drawing of the program's own data on black glass.
class ChartView : public PaintedView {
    Q_OBJECT
public:
    using PaintedView::PaintedView;
    void sync() override;
    [[nodiscard]] QString spokenName() const override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Chart; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    [[nodiscard]] const Chart& chart() const { return static_cast<const Chart&>(*control); }
    Drawing shown_;
};

} // namespace gatewise::window
