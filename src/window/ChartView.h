#pragma once

#include "window/PickView.h"

#include <QPen>
#include <QPolygonF>

#include <functional>

namespace gatewise::window {

class Skin;

/// How a line that is not dashed comes onto what is painted: its points in the painter's units.
using LineWay = std::function<void(const QPolygonF& line, const QPen& pen)>;

/// Draws a drawing into a box: on the screen in the look's colours, on paper in black and grey. `point` is
/// how many units of the painter make a point of paper, 0 on the screen. Texts are measured on the painter's
/// device. Lines are drawn by the painter unless a way is given for the solid ones.
void drawDrawing(QPainter& painter, const QRectF& box, const Drawing& drawing, const QFont& font,
                 double point = 0, const LineWay& solid = {});

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
