#pragma once

#include <QPoint>
#include <QRect>

#include <cmath>

namespace gatewise::window {

/// How many pixels of the desk a pixel of the layout takes, for all windows alike. Edges are rounded where
/// they lie in the window, so that neighbours neither part nor overlap.
struct Zoom {
    double factor = 1;

    [[nodiscard]] int edge(double at) const { return static_cast<int>(std::lround(at * factor)); }
    [[nodiscard]] QPoint point(QPoint at) const { return {edge(at.x()), edge(at.y())}; }
    [[nodiscard]] QSize size(QSize size) const { return {edge(size.width()), edge(size.height())}; }
    [[nodiscard]] QRect box(const QRect& box) const {
        const QPoint from = point(box.topLeft());
        return {from, point(box.topLeft() + QPoint(box.width(), box.height())) - QPoint(1, 1)};
    }
    [[nodiscard]] QPointF back(QPointF at) const { return at / factor; }
};

} // namespace gatewise::window
