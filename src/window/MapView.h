#pragma once

#include "window/MapPane.h"
#include "window/PickView.h"

#include <optional>

class QNativeGestureEvent;
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
    void takePlace() override;
    [[nodiscard]] QString spokenName() const override;
    [[nodiscard]] const MapSight& sight() const { return pane_.sight(); }
    /// The map itself, where what was drawn of it before is shown for a moment.
    void settle() { pane_.settle(); }
    [[nodiscard]] bool settled() const { return pane_.settled(); }
    /// For a process that ends without unwinding: nothing is drawn beside it any more.
    void finish() { pane_.finish(); }

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

    [[nodiscard]] const Drawing& painted() const override { return pane_.drawing(); }
    [[nodiscard]] QRectF sheet() const override;
    [[nodiscard]] Under under(QPointF at) const override;

private:
    [[nodiscard]] MapChart& mapChart() const { return static_cast<MapChart&>(*control); }
    [[nodiscard]] MapSight whole(const MapScene& scene) const { return fitted(scene, size()); }
    void stand();
    void look(const MapSight& sight);
    void fit();
    void zoom(double factor, QPointF about);
    void pinched(const QPinchGesture& pinch);
    void pinched(const QNativeGestureEvent& pinch);

    MapPane pane_{[this] { update(); }};
    bool fits_ = true; // nobody moved it yet
    std::optional<QPointF> held_;
    bool dragged_ = false;
    double spread_ = 1; // of two fingers since they came down
};

} // namespace gatewise::window
