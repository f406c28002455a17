#include "window/AccessTables.h"

#include "window/AccessOf.h"

namespace gatewise::window {

namespace {

QRect onScreen(const QWidget& widget) {
    return {widget.mapToGlobal(QPoint(0, 0)), widget.size()};
}

/// Shown as its ground is shown.
QAccessible::State stateOn(const LinesTable& table) {
    QAccessible::State state;
    state.invisible = !table.ground()->isVisible();
    state.offscreen = state.invisible;
    return state;
}

} // namespace

void* LinesTableAccess::interface_cast(QAccessible::InterfaceType type) {
    return type == QAccessible::TableInterface ? static_cast<QAccessibleTableInterface*>(this) : nullptr;
}

QAccessibleInterface* LinesTableAccess::parent() const {
    return accessOf(table_.ground());
}

int LinesTableAccess::childCount() const {
    return columnCount() * (rowCount() + 1);
}

QAccessibleInterface* LinesTableAccess::child(int index) const {
    if (index < 0 || index >= childCount()) return nullptr;
    if (index >= columnCount()) return cellAt(index / columnCount() - 1, index % columnCount());
    const auto& column = table_.columns()[static_cast<std::size_t>(index)];
    return accessOf(column.head != nullptr ? column.head->widget() : column.spokenHead);
}

int LinesTableAccess::indexOfChild(const QAccessibleInterface* child) const {
    for (int i = 0; child != nullptr && i < childCount(); ++i) {
        if (this->child(i) == child) return i;
    }
    return -1;
}

QString LinesTableAccess::text(QAccessible::Text kind) const {
    return kind == QAccessible::Name ? table_.name() : QString();
}

QAccessible::State LinesTableAccess::state() const {
    return stateOn(table_);
}

QRect LinesTableAccess::rect() const {
    QRect box;
    for (const auto& column : table_.columns()) {
        for (View* cell : column.cells) box |= onScreen(*cell->widget());
    }
    return box;
}

QAccessibleInterface* LinesTableAccess::cellAt(int row, int column) const {
    const std::vector<int> lines = table_.lines();
    if (row < 0 || row >= static_cast<int>(lines.size()) || column < 0 || column >= columnCount())
        return nullptr;
    const auto& cells = table_.columns()[static_cast<std::size_t>(column)].cells;
    const auto line = static_cast<std::size_t>(lines[static_cast<std::size_t>(row)]);
    return line < cells.size() ? accessOf(cells[line]->widget()) : nullptr;
}

QString LinesTableAccess::columnDescription(int column) const {
    return column >= 0 && column < columnCount() ? table_.headWords(column) : QString();
}

QString LinesTableAccess::rowDescription(int row) const {
    const QAccessibleInterface* cell = cellAt(row, 0);
    return cell == nullptr ? QString() : cell->text(QAccessible::Name);
}

QAccessibleInterface* LinesHeadAccess::parent() const {
    return accessOf(&head_.table);
}

QString LinesHeadAccess::text(QAccessible::Text kind) const {
    return kind == QAccessible::Name ? head_.table.headWords(head_.column) : QString();
}

QAccessible::State LinesHeadAccess::state() const {
    return stateOn(head_.table);
}

/// Above its first cell, as high as that.
QRect LinesHeadAccess::rect() const {
    const auto& column = head_.table.columns()[static_cast<std::size_t>(head_.column)];
    const QRect cell = onScreen(*column.cells.front()->widget());
    return cell.translated(0, -cell.height());
}

} // namespace gatewise::window
