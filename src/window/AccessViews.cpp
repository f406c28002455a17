#include "window/AccessViews.h"

#include "window/AccessOf.h"
#include "window/FocusRing.h"
#include "window/LinesTable.h"

#include <QPointer>

#include <algorithm>

namespace gatewise::window {

// ------------------------------------------------------------------------------------------------ grounds

QObjectList GroundAccess::objects() const {
    QObjectList out;
    for (QObject* object : widget()->children()) {
        const auto* view = dynamic_cast<const View*>(object);
        const bool table = dynamic_cast<const LinesTable*>(object) != nullptr;
        // A list that cannot be seen is not there: its rows would be told as shown.
        const bool shown = object->isWidgetType() && dynamic_cast<const FocusRing*>(object) == nullptr &&
                           static_cast<const QWidget*>(object)->isVisible() &&
                           !static_cast<const QWidget*>(object)->isWindow();
        if (view != nullptr ? view->lines == nullptr && !view->silent() : table || shown) out << object;
    }
    return out;
}

int GroundAccess::childCount() const {
    return static_cast<int>(objects().size());
}

QAccessibleInterface* GroundAccess::child(int index) const {
    return accessOf(objects().value(index));
}

int GroundAccess::indexOfChild(const QAccessibleInterface* child) const {
    return child == nullptr ? -1 : static_cast<int>(objects().indexOf(child->object()));
}

// ------------------------------------------------------------------------------------------------ views

void* ViewAccess::interface_cast(QAccessible::InterfaceType type) {
    if (type == QAccessible::TableCellInterface && view_.lines != nullptr)
        return static_cast<QAccessibleTableCellInterface*>(this);
    return GroundAccess::interface_cast(type);
}

QAccessibleInterface* ViewAccess::parent() const {
    return view_.lines != nullptr ? table() : GroundAccess::parent();
}

QString ViewAccess::text(QAccessible::Text kind) const {
    const bool frame = widget()->focusProxy() != nullptr; // what is inside of it speaks
    if (kind == QAccessible::Name) return frame ? QString() : view_.spokenName();
    if (kind == QAccessible::Description) return frame ? QString() : view_.spokenDetails();
    return GroundAccess::text(kind);
}

QAccessible::State ViewAccess::state() const {
    QAccessible::State state = GroundAccess::state();
    const bool frame = widget()->focusProxy() != nullptr;
    state.focusable = view_.takesFocus() && !frame;
    if (frame) state.focused = false;
    if (view_.isKey() && !view_.usable()) state.disabled = true;
    return state;
}

QStringList ViewAccess::actionNames() const {
    if (!view_.takesFocus() || widget()->focusProxy() != nullptr) return {};
    QStringList names = GroundAccess::actionNames();
    names.prepend(pressAction());
    if (view_.control->handles(Event::RightPress)) names << showMenuAction();
    return names;
}

void ViewAccess::doAction(const QString& name) {
    const bool menu = name == showMenuAction();
    if ((name != pressAction() && !menu) || !view_.takesFocus()) {
        GroundAccess::doAction(name);
        return;
    }
    View& view = view_;
    const auto press = [&view, menu] {
        if (view.takesFocus()) menu ? view.showMore() : view.activate();
    };
    QMetaObject::invokeMethod(widget(), press, Qt::QueuedConnection);
}

QList<QPair<QAccessibleInterface*, QAccessible::Relation>> relationsOf(const View& view,
                                                                       QAccessible::Relation match) {
    QList<QPair<QAccessibleInterface*, QAccessible::Relation>> out;
    const auto add = [&](View& other, QAccessible::Relation relation) {
        if (QAccessibleInterface* access = accessOf(other.widget())) out.append({access, relation});
    };
    if (match.testFlag(QAccessible::Label) && view.caption != nullptr) add(*view.caption, QAccessible::Label);
    if (match.testFlag(QAccessible::Labelled)) {
        for (View* other : view.named) add(*other, QAccessible::Labelled);
    }
    return out;
}

QList<QPair<QAccessibleInterface*, QAccessible::Relation>>
ViewAccess::relations(QAccessible::Relation match) const {
    return relationsOf(view_, match);
}

// ------------------------------------------------------------------------------------------------ cells

QAccessibleInterface* ViewAccess::table() const {
    return accessOf(const_cast<LinesTable*>(view_.lines));
}

int ViewAccess::columnIndex() const {
    return view_.lines->columnOf(view_);
}

int ViewAccess::rowIndex() const {
    const std::vector<int> lines = view_.lines->lines();
    const auto at = std::find(lines.begin(), lines.end(), view_.place.row);
    return at == lines.end() ? -1 : static_cast<int>(at - lines.begin());
}

QList<QAccessibleInterface*> ViewAccess::columnHeaderCells() const {
    const auto& column = view_.lines->columns()[static_cast<std::size_t>(columnIndex())];
    return {accessOf(column.head != nullptr ? column.head->widget() : column.spokenHead)};
}

QList<QAccessibleInterface*> ViewAccess::rowHeaderCells() const {
    const auto& cells = view_.lines->columns().front().cells;
    const auto row = static_cast<std::size_t>(std::max(0, view_.place.row));
    return {accessOf(row < cells.size() ? cells[row]->widget() : nullptr)};
}

} // namespace gatewise::window
