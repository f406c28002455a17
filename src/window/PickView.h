#pragma once

#include "map/Sight.h"
#include "window/View.h"

#include <optional>

namespace gatewise::window {

/// A drawing whose marks and routes say what they are under the pointer, and are picked by a click.
class PickView : public PaintedView {
    Q_OBJECT
public:
    using PaintedView::PaintedView;
    [[nodiscard]] QString spokenName() const override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Chart; }
    [[nodiscard]] std::span<const Event> emits() const override;
    /// Where a click picks what has that id; nothing when it is not in sight.
    [[nodiscard]] std::optional<QPoint> pointOf(int id) const;

protected:
    bool event(QEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void leaveEvent(QEvent* event) override;

    [[nodiscard]] Chart& chart() const { return static_cast<Chart&>(*control); }
    [[nodiscard]] QPointF inSheet(QPointF at) const { return at - sheet().topLeft(); }
    [[nodiscard]] map::SheetSize size() const { return {sheet().width(), sheet().height()}; }
    /// The drawing as painted last, and the box of its sheet.
    [[nodiscard]] virtual const Drawing& painted() const = 0;
    [[nodiscard]] virtual QRectF sheet() const = 0;
    /// Of what lies near a point: its id and its words.
    struct Under {
        int id = -1;
        QString words;
    };
    [[nodiscard]] virtual Under under(QPointF at) const;
    void pointAt(int id);
    void pickAt(QPointF at);

private:
    int pointed_ = -1;
    bool held_ = false;
};

} // namespace gatewise::window
