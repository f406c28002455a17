#include "window/ContextMenus.h"

#include "input/UserEvents.h"
#include "window/Sheets.h"
#include "window/Skin.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QKeyEvent>
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

bool isHelpKey(const Control& control) {
    return control.kind == Kind::FlatButton &&
           static_cast<const SkinnedButton&>(control).button_type == "help";
}

/// The menu key, and what stands for it where a keyboard has none.
bool asksForMenu(const QEvent& event) {
    if (event.type() != QEvent::KeyPress) return false;
    const auto& pressed = static_cast<const QKeyEvent&>(event);
    return pressed.key() == Qt::Key_Menu ||
           (pressed.key() == Qt::Key_F10 && pressed.modifiers() == Qt::ShiftModifier);
}

} // namespace

ContextMenus::ContextMenus(Actor& actor, Forms& forms) : actor_(actor), forms_(forms) {
    qApp->installEventFilter(this);
}

QMenu* ContextMenus::emptyMenu(QWidget& owner) const {
    auto* menu = new QMenu(&owner);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->setFont(actor_.skin().widgetFont("data"));
    menu->setStyleSheet(menuSheet(actor_.skin()));
    return menu;
}

QMenu* ContextMenus::menuOf(QWidget& field) const {
    QMenu* menu = emptyMenu(field);
    if (auto* line = qobject_cast<QLineEdit*>(&field)) fill(*menu, *line);
    if (auto* notes = qobject_cast<QPlainTextEdit*>(&field)) fill(*menu, *notes);
    return menu;
}

QMenu* ContextMenus::helpMenu(QWidget& key) {
    QMenu* menu = emptyMenu(key);
    // A screen that opens waits until it is closed: the menu is gone by then.
    const auto add = [&](const char* words, Control& pressed) {
        const auto press = [this, &pressed] { actor_.act([&pressed] { user::click(pressed); }); };
        connect(menu->addAction(words), &QAction::triggered, this, press, Qt::QueuedConnection);
    };
    add("Help", *viewOf(&key)->control);
    add("Import schedules...", forms_.MainForm.importButton);
    return menu;
}

/// Whether the event asked for a menu that the view has, and got it.
bool ContextMenus::asked(View& view, QEvent& event) {
    const bool menu = event.type() == QEvent::ContextMenu;
    QWidget& widget = *view.widget();
    if (view.control->kind == Kind::TextBox) {
        if (!menu || !widget.isEnabled()) return false;
        menuOf(widget)->popup(static_cast<QContextMenuEvent&>(event).globalPos());
        return true;
    }
    if (!isHelpKey(*view.control) || !view.usable() || (!menu && !asksForMenu(event))) return false;
    const bool mouse = menu && static_cast<QContextMenuEvent&>(event).reason() == QContextMenuEvent::Mouse;
    helpMenu(widget)->popup(mouse ? static_cast<QContextMenuEvent&>(event).globalPos()
                                  : widget.mapToGlobal(widget.rect().center()));
    return true;
}

bool ContextMenus::eventFilter(QObject* object, QEvent* event) {
    if ((event->type() != QEvent::ContextMenu && event->type() != QEvent::KeyPress) ||
        !object->isWidgetType() || QApplication::activePopupWidget() != nullptr)
        return QObject::eventFilter(object, event);
    View* view = viewOf(object);
    if (view == nullptr || view->control == nullptr) return QObject::eventFilter(object, event);
    return asked(*view, *event) || QObject::eventFilter(object, event);
}

} // namespace gatewise::window
