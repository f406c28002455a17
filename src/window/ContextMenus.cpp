#include "window/ContextMenus.h"

#include "window/Sheets.h"
#include "window/View.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QLineEdit>
#include <QMenu>
#include <QPlainTextEdit>

namespace gatewise::window {

namespace {

/// What a field of either class can do now.
struct Abilities {
    bool selected = false, writable = false, filled = false, undo = false;
};

Abilities of(const QLineEdit& line) {
    return {line.hasSelectedText(), !line.isReadOnly(), !line.text().isEmpty(), line.isUndoAvailable()};
}
Abilities of(const QPlainTextEdit& notes) {
    return {notes.textCursor().hasSelection(), !notes.isReadOnly(), !notes.document()->isEmpty(),
            notes.document()->isUndoAvailable()};
}

template<class Field> void fill(QMenu& menu, Field& field) {
    const Abilities can = of(field);
    const auto add = [&](const char* words, QKeySequence::StandardKey keys, bool enabled, auto act) {
        QAction* action = menu.addAction(words);
        action->setShortcut(keys);
        action->setEnabled(enabled);
        QObject::connect(action, &QAction::triggered, &field, act);
    };
    add("Undo", QKeySequence::Undo, can.writable && can.undo, &Field::undo);
    menu.addSeparator();
    add("Cut", QKeySequence::Cut, can.writable && can.selected, &Field::cut);
    add("Copy", QKeySequence::Copy, can.selected, &Field::copy);
    add("Paste", QKeySequence::Paste, can.writable && !QGuiApplication::clipboard()->text().isEmpty(),
        &Field::paste);
    menu.addSeparator();
    add("Select All", QKeySequence::SelectAll, can.filled, &Field::selectAll);
}

} // namespace

ContextMenus::ContextMenus(const Skin& skin) : skin_(skin) {
    qApp->installEventFilter(this);
}

QMenu* ContextMenus::menuOf(QWidget& field) const {
    auto* menu = new QMenu(&field);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setFont(skin_.widgetFont("data"));
    menu->setStyleSheet(menuSheet(skin_));
    if (auto* line = qobject_cast<QLineEdit*>(&field)) fill(*menu, *line);
    if (auto* notes = qobject_cast<QPlainTextEdit*>(&field)) fill(*menu, *notes);
    return menu;
}

bool ContextMenus::eventFilter(QObject* object, QEvent* event) {
    if (event->type() != QEvent::ContextMenu || !object->isWidgetType())
        return QObject::eventFilter(object, event);
    View* view = viewOf(object);
    QWidget* field = view != nullptr && view->control != nullptr && view->control->kind == Kind::TextBox
                         ? view->widget()
                         : nullptr;
    if (field == nullptr || !field->isEnabled()) return QObject::eventFilter(object, event);
    menuOf(*field)->popup(static_cast<QContextMenuEvent*>(event)->globalPos());
    return true;
}

} // namespace gatewise::window
