#include "window/AccessFields.h"

#include "window/AccessOf.h"
#include "window/AccessViews.h"

#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QComboBox>
#include <QLineEdit>

#include <algorithm>

namespace gatewise::window {

QString FieldAccess::text(QAccessible::Text kind) const {
    if (kind == QAccessible::Name) return view_.spokenName();
    if (kind == QAccessible::Description) return view_.spokenDetails();
    if (kind == QAccessible::Value) return value();
    return QAccessibleWidget::text(kind);
}

QAccessible::State FieldAccess::state() const {
    QAccessible::State state = QAccessibleWidget::state();
    state.focusable = view_.takesFocus();
    return state;
}

QList<QPair<QAccessibleInterface*, QAccessible::Relation>>
FieldAccess::relations(QAccessible::Relation match) const {
    return relationsOf(view_, match);
}

// ------------------------------------------------------------------------------------------------ combo

ComboAccess::ComboAccess(QComboBox* box, View& view) : FieldAccess(box, view), box_(*box) {}

QString ComboAccess::value() const {
    return box_.currentText();
}

int ComboAccess::childCount() const {
    return box_.view()->isVisible() ? 1 : 0;
}

QAccessibleInterface* ComboAccess::child(int index) const {
    return index == 0 && box_.view()->isVisible() ? accessOf(box_.view()) : nullptr;
}

int ComboAccess::indexOfChild(const QAccessibleInterface* child) const {
    return child != nullptr && child->object() == box_.view() ? 0 : -1;
}

QAccessible::State ComboAccess::state() const {
    QAccessible::State state = FieldAccess::state();
    state.expandable = true;
    state.expanded = box_.view()->isVisible();
    state.collapsed = !state.expanded;
    return state;
}

QStringList ComboAccess::actionNames() const {
    return view_.takesFocus() ? QStringList{showMenuAction(), pressAction()} : QStringList();
}

void ComboAccess::doAction(const QString& name) {
    if ((name != showMenuAction() && name != pressAction()) || !view_.takesFocus()) return;
    QMetaObject::invokeMethod(
        &box_, [this] { box_.showPopup(); }, Qt::QueuedConnection);
}

// ------------------------------------------------------------------------------------------------ range

RangeAccess::RangeAccess(QAbstractSlider* slider, View& view) : FieldAccess(slider, view), slider_(*slider) {}

void* RangeAccess::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
    return FieldAccess::interface_cast(type);
}

QVariant RangeAccess::currentValue() const {
    return slider_.value();
}

void RangeAccess::setCurrentValue(const QVariant& value) {
    if (view_.takesFocus()) slider_.setValue(value.toInt());
}

QVariant RangeAccess::maximumValue() const {
    return slider_.maximum();
}

QVariant RangeAccess::minimumValue() const {
    return slider_.minimum();
}

QVariant RangeAccess::minimumStepSize() const {
    return slider_.singleStep();
}

QString RangeAccess::value() const {
    return QString::number(slider_.value());
}

// ------------------------------------------------------------------------------------------------ line

LineAccess::LineAccess(QLineEdit* line, View& view) : FieldAccess(line, view), line_(*line) {}

void* LineAccess::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TextInterface) return static_cast<QAccessibleTextInterface*>(this);
    if (type == QAccessible::EditableTextInterface)
        return static_cast<QAccessibleEditableTextInterface*>(this);
    return FieldAccess::interface_cast(type);
}

QAccessible::State LineAccess::state() const {
    QAccessible::State state = FieldAccess::state();
    state.readOnly = line_.isReadOnly();
    state.editable = !line_.isReadOnly() && line_.isEnabled();
    state.selectableText = true;
    return state;
}

QString LineAccess::value() const {
    return line_.text();
}

void LineAccess::selection(int index, int* start, int* end) const {
    const bool any = index == 0 && line_.hasSelectedText();
    *start = any ? line_.selectionStart() : 0;
    *end = any ? line_.selectionEnd() : 0;
}

int LineAccess::selectionCount() const {
    return line_.hasSelectedText() ? 1 : 0;
}

void LineAccess::addSelection(int start, int end) {
    setSelection(0, start, end);
}

void LineAccess::removeSelection(int index) {
    if (index == 0) line_.deselect();
}

void LineAccess::setSelection(int index, int start, int end) {
    if (index == 0) line_.setSelection(start, end - start);
}

int LineAccess::cursorPosition() const {
    return line_.cursorPosition();
}

void LineAccess::setCursorPosition(int at) {
    line_.setCursorPosition(at);
}

QString LineAccess::text(int start, int end) const {
    return start < 0 || end < start ? QString() : line_.text().mid(start, end - start);
}

int LineAccess::characterCount() const {
    return static_cast<int>(line_.text().size());
}

QRect LineAccess::characterRect(int at) const {
    if (at < 0 || at >= characterCount()) return {};
    const QFontMetrics metrics(line_.font());
    const int left = line_.textMargins().left() + metrics.horizontalAdvance(line_.text().left(at));
    const QRect box(left, 0, metrics.horizontalAdvance(line_.text().mid(at, 1)), line_.height());
    return box.translated(line_.mapToGlobal(QPoint(0, 0)));
}

int LineAccess::offsetAtPoint(const QPoint& point) const {
    return line_.cursorPositionAt(line_.mapFromGlobal(point));
}

void LineAccess::scrollToSubstring(int start, int end) {
    line_.setCursorPosition(end);
    line_.setCursorPosition(start);
}

QString LineAccess::attributes(int, int* start, int* end) const {
    *start = 0;
    *end = characterCount();
    return {};
}

void LineAccess::deleteText(int start, int end) {
    replaceText(start, end, {});
}

void LineAccess::insertText(int at, const QString& text) {
    replaceText(at, at, text);
}

void LineAccess::replaceText(int start, int end, const QString& text) {
    const int from = std::clamp(start, 0, characterCount());
    const int to = std::clamp(end, from, characterCount());
    write(line_.text().left(from) + text + line_.text().mid(to), from + static_cast<int>(text.size()));
}

void LineAccess::write(const QString& text, int cursor) {
    if (!view_.takesFocus()) return;
    line_.setText(text);
    line_.setCursorPosition(cursor);
    Q_EMIT line_.textEdited(line_.text());
}

} // namespace gatewise::window
