#pragma once

#include "window/LinesTable.h"

#include <QAccessibleObject>

namespace gatewise::window {

/// The table that lines of texts form: heads first, then the cells line by line.
class LinesTableAccess : public QAccessibleObject, public QAccessibleTableInterface {
public:
    explicit LinesTableAccess(LinesTable& table) : QAccessibleObject(&table), table_(table) {}

    void* interface_cast(QAccessible::InterfaceType type) override;
    QAccessibleInterface* parent() const override;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::Role role() const override { return QAccessible::Table; }
    QAccessible::State state() const override;
    QRect rect() const override;

    QAccessibleInterface* caption() const override { return nullptr; }
    QAccessibleInterface* summary() const override { return nullptr; }
    QAccessibleInterface* cellAt(int row, int column) const override;
    int selectedCellCount() const override { return 0; }
    QList<QAccessibleInterface*> selectedCells() const override { return {}; }
    QString columnDescription(int column) const override;
    QString rowDescription(int row) const override;
    int columnCount() const override { return static_cast<int>(table_.columns().size()); }
    int rowCount() const override { return static_cast<int>(table_.lines().size()); }
    int selectedColumnCount() const override { return 0; }
    int selectedRowCount() const override { return 0; }
    QList<int> selectedColumns() const override { return {}; }
    QList<int> selectedRows() const override { return {}; }
    bool isColumnSelected(int) const override { return false; }
    bool isRowSelected(int) const override { return false; }
    bool selectRow(int) override { return false; }
    bool selectColumn(int) override { return false; }
    bool unselectRow(int) override { return false; }
    bool unselectColumn(int) override { return false; }
    void modelChange(QAccessibleTableModelChangeEvent*) override {}

private:
    LinesTable& table_;
};

/// A head that only the picture shows.
class LinesHeadAccess : public QAccessibleObject {
public:
    explicit LinesHeadAccess(LinesHead& head) : QAccessibleObject(&head), head_(head) {}
    QAccessibleInterface* parent() const override;
    int childCount() const override { return 0; }
    QAccessibleInterface* child(int) const override { return nullptr; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }
    QString text(QAccessible::Text kind) const override;
    QAccessible::Role role() const override { return QAccessible::ColumnHeader; }
    QAccessible::State state() const override;
    QRect rect() const override;

private:
    LinesHead& head_;
};

} // namespace gatewise::window
