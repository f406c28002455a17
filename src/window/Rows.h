#pragma once

#include "window/RowsTable.h"

namespace gatewise::window {

/// List boxes, folder and file lists, list views with columns.
class RowsView : public PaintedView {
    Q_OBJECT
public:
    RowsView(Actor& actor, Control* control, const ControlLayout& place, QWidget* parent);
    void sync() override;
    [[nodiscard]] std::span<const Event> emits() const override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Grouping; }
    [[nodiscard]] bool takesFocus() const override { return usable(); }
    [[nodiscard]] QMargins beyond() const override { return {0, 0, 0, 1}; }
    void takePlace() override;
    [[nodiscard]] RowsTable& table() { return *table_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    RowsModel model_;
    RowsTable* table_;
};

} // namespace gatewise::window
