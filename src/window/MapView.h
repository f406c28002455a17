#pragma once

#include "map/MapDrawing.h"
#include "window/PickView.h"

#include <optional>

class QPinchGesture;

namespace gatewise::window {

/// A map that is moved by dragging and the arrow keys, zoomed by the wheel, + and - and two fingers, centred
/// by a double click, and shown whole by F or Home.
class MapView : public PickView {
    Q_OBJECT
public:
    MapView(Actor& actor, Control* control, const ControlLayout& place, QWidget* parent);
    void sync() override;
    [[nodiscard]] bool takesFocus() const override { return true; }
    [[nodiscard]] const MapSight& sight() const { return sight_; }

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    [[nodiscard]] const Drawing& painted() const override { return drawing_; }
    [[nodiscard]] QRectF sheet() const override;
    [[nodiscard]] Under under(QPointF at) const override;

private:
    [[nodiscard]] MapChart& mapChart() const { return static_cast<MapChart&>(*control); }
    [[nodiscard]] map::Sheet mapSheet() const;
    void look(const MapSight& sight);
    void fit();
    void zoom(double factor, QPointF about);
    void pinched(const QPinchGesture& pinch);
    /// The drawing of what is in sight now, made when it is needed.
    void draw();

    MapScene shown_;
    int chosen_ = -1;
    MapSight sight_;
    bool fits_ = true; // nobody moved it yet
    Drawing drawing_;
    std::optional<QPointF> held_;
    bool dragged_ = false;
};

} // namespace gatewise::window
