#pragma once

#include "window/LabelText.h"
#include "window/Narrowing.h"
#include "window/RowsHead.h"
#include "window/RowsModel.h"
#include "window/View.h"

#include <QTreeView>

namespace gatewise::window {

/// The table inside of a list: rows are picked by the left or the right button and by the arrow keys; a
/// double click, Enter, Space and the right button do what the form says of them.
class RowsTable : public QTreeView {
    Q_OBJECT
public:
    RowsTable(Actor& actor, Control& control, const ControlLayout& place, RowsModel& model, QWidget* parent);
    /// Shows the form's rows, widths and picked row without telling the form. A list that is filled anew
    /// keeps its place when a row of it is picked, and begins at the top when none is.
    void sync();
    /// Rows, heads and the bar at the zoom of now.
    void takeSizes();

protected:
    void drawRow(QPainter* painter, const QStyleOptionViewItem& option,
                 const QModelIndex& index) const override;
    void paintEvent(QPaintEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
    int sizeHintForColumn(int column) const override;

private:
    void choose(int row);
    void pressRight(const QModelIndex& at);
    void open(void (*event)(Control&));
    void pressSpace();
    bool narrow(const QKeyEvent& event);
    [[nodiscard]] int picked() const;
    [[nodiscard]] int rowPixels() const;
    /// Where a column's text stands in a row that begins at `top`.
    [[nodiscard]] QRectF cell(int column, int top) const;
    [[nodiscard]] TextStyle style(int row) const;
    Actor& actor_;
    Control& control_;
    const ControlLayout& place_;
    RowsModel& model_;
    RowsHead* head_;
    bool syncing_ = false;
    Narrowing narrowing_;
};

} // namespace gatewise::window
