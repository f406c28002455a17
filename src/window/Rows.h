#pragma once

#include "window/LabelText.h"
#include "window/View.h"

#include <QAbstractTableModel>
#include <QTreeView>

namespace gatewise::window {

/// The rows that a list shows: a copy of what the form held at the last look.
class RowsModel : public QAbstractTableModel {
    Q_OBJECT
public:
    explicit RowsModel(const Control& control) : control_(control) {}
    /// Takes over what the form holds now; false when nothing differs.
    bool sync();
    [[nodiscard]] bool bold(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    const Control& control_;
    std::vector<std::vector<std::string>> rows_;
    std::vector<bool> bold_;
    std::vector<std::string> heads_;
};

/// The table inside of a list.
class RowsTable : public QTreeView {
    Q_OBJECT
public:
    RowsTable(Actor& actor, Control& control, const ControlLayout& place, RowsModel& model, QWidget* parent);
    bool syncing = false;

protected:
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override;
    void paintEvent(QPaintEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    void choose(int row);
    void open();
    /// Where a column's text stands in a row that begins at `top`.
    [[nodiscard]] QRectF cell(int column, int top) const;
    [[nodiscard]] TextStyle style(int row) const;
    Actor& actor_;
    Control& control_;
    const ControlLayout& place_;
    RowsModel& model_;
};

/// List boxes, folder and file lists, list views with columns.
class RowsView : public PaintedView {
    Q_OBJECT
public:
    RowsView(Actor& actor, Control* control, const ControlLayout& place, QWidget* parent);
    void sync() override;
    [[nodiscard]] QAccessible::Role role() const override { return QAccessible::Grouping; }
    [[nodiscard]] bool takesFocus() const override { return usable(); }
    void putAt(QPoint corner) override;
    [[nodiscard]] RowsTable& table() { return *table_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void syncColumns();
    [[nodiscard]] int picked() const;
    RowsModel model_;
    RowsTable* table_;
};

} // namespace gatewise::window
