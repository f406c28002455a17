#pragma once

#include "tour/Stage.h"
#include "window/Rows.h"

namespace gatewise::test {

/// The table that shows the rows of a list.
inline window::RowsTable& tableOf(stage::Stage& stage, const Control& list) {
    return dynamic_cast<window::RowsView&>(stage.widget(list)).table();
}

/// The middle of a row's first cell, in the table's window.
inline QPoint middleOf(const window::RowsTable& table, int row) {
    const QPoint at = table.visualRect(table.model()->index(row, 0)).center();
    return table.viewport()->mapTo(table.window(), at);
}

} // namespace gatewise::test
