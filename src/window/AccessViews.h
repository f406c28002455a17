#pragma once

#include "window/View.h"

#include <QAccessibleWidget>

namespace gatewise::window {

class LinesTable;

/// A widget of ours whose children are the views that say something, and the tables that they form.
class GroundAccess : public QAccessibleWidget {
public:
    using QAccessibleWidget::QAccessibleWidget;
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;

private:
    [[nodiscard]] QObjectList objects() const;
};

/// A window: a frame, or a dialog.
class WindowAccess : public GroundAccess {
public:
    WindowAccess(QWidget* window, QAccessible::Role role) : GroundAccess(window, role) {}
};

/// A view that Qt has no description for.
class ViewAccess : public GroundAccess, public QAccessibleTableCellInterface {
public:
    ViewAccess(QWidget* widget, View& view) : GroundAccess(widget, view.role()), view_(view) {}

    void* interface_cast(QAccessible::InterfaceType type) override;
    QAccessibleInterface* parent() const override;
    QString text(QAccessible::Text kind) const override;
    QAccessible::Role role() const override { return view_.role(); }
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    /// Comes back at once: what a press brings about may wait for the person.
    void doAction(const QString& name) override;
    QList<QPair<QAccessibleInterface*, QAccessible::Relation>>
    relations(QAccessible::Relation match) const override;

    // As a cell of a table.
    bool isSelected() const override { return false; }
    QList<QAccessibleInterface*> columnHeaderCells() const override;
    QList<QAccessibleInterface*> rowHeaderCells() const override;
    int columnIndex() const override;
    int rowIndex() const override;
    int columnExtent() const override { return 1; }
    int rowExtent() const override { return 1; }
    QAccessibleInterface* table() const override;

private:
    View& view_;
};

/// Who names a view, and whom it names, as the toolkit tells it.
QList<QPair<QAccessibleInterface*, QAccessible::Relation>> relationsOf(const View& view,
                                                                       QAccessible::Relation match);

} // namespace gatewise::window
