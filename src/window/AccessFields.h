#pragma once

#include "window/View.h"

#include <QAccessibleWidget>

class QComboBox;
class QAbstractSlider;
class QLineEdit;

namespace gatewise::window {

/// A field that says what it is for and which label names it.
class FieldAccess : public QAccessibleWidget {
public:
    FieldAccess(QWidget* widget, View& view) : QAccessibleWidget(widget, view.role()), view_(view) {}
    QString text(QAccessible::Text kind) const override;
    QAccessible::State state() const override;
    QList<QPair<QAccessibleInterface*, QAccessible::Relation>>
    relations(QAccessible::Relation match) const override;

protected:
    /// What stands in it.
    [[nodiscard]] virtual QString value() const = 0;
    View& view_;
};

/// A combo box. Its list is there while it is open.
class ComboAccess : public FieldAccess {
public:
    ComboAccess(QComboBox* box, View& view);
    int childCount() const override;
    QAccessibleInterface* child(int index) const override;
    int indexOfChild(const QAccessibleInterface* child) const override;
    QAccessible::State state() const override;
    QStringList actionNames() const override;
    void doAction(const QString& name) override;

protected:
    [[nodiscard]] QString value() const override;

private:
    QComboBox& box_;
};

/// A slider, or arrows up and down.
class RangeAccess : public FieldAccess, public QAccessibleValueInterface {
public:
    RangeAccess(QAbstractSlider* slider, View& view);
    void* interface_cast(QAccessible::InterfaceType type) override;
    QVariant currentValue() const override;
    void setCurrentValue(const QVariant& value) override;
    QVariant maximumValue() const override;
    QVariant minimumValue() const override;
    QVariant minimumStepSize() const override;

protected:
    [[nodiscard]] QString value() const override;

private:
    QAbstractSlider& slider_;
};

/// A line to type in.
class LineAccess : public FieldAccess,
                   public QAccessibleTextInterface,
                   public QAccessibleEditableTextInterface {
public:
    LineAccess(QLineEdit* line, View& view);
    void* interface_cast(QAccessible::InterfaceType type) override;
    QAccessible::State state() const override;

    void selection(int index, int* start, int* end) const override;
    int selectionCount() const override;
    void addSelection(int start, int end) override;
    void removeSelection(int index) override;
    void setSelection(int index, int start, int end) override;
    int cursorPosition() const override;
    void setCursorPosition(int at) override;
    QString text(int start, int end) const override;
    using FieldAccess::text;
    int characterCount() const override;
    QRect characterRect(int at) const override;
    int offsetAtPoint(const QPoint& point) const override;
    void scrollToSubstring(int start, int end) override;
    QString attributes(int at, int* start, int* end) const override;
    void deleteText(int start, int end) override;
    void insertText(int at, const QString& text) override;
    void replaceText(int start, int end, const QString& text) override;

protected:
    [[nodiscard]] QString value() const override;

private:
    /// As if the person had typed it.
    void write(const QString& text, int cursor);
    QLineEdit& line_;
};

} // namespace gatewise::window
