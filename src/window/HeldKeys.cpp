#include "window/HeldKeys.h"

#include <QApplication>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPlainTextEdit>

namespace gatewise::window {

namespace {

bool doesSomething(int key) {
    return key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space || key == Qt::Key_Escape ||
           key == Qt::Key_Menu;
}

/// Whether the key writes into the text that has the focus.
bool writes(int key) {
    const QWidget* focus = QApplication::focusWidget();
    if (qobject_cast<const QPlainTextEdit*>(focus) != nullptr) return key != Qt::Key_Escape;
    return qobject_cast<const QLineEdit*>(focus) != nullptr && key == Qt::Key_Space;
}

} // namespace

HeldKeys::HeldKeys() {
    qApp->installEventFilter(this);
}

bool HeldKeys::eventFilter(QObject* object, QEvent* event) {
    const bool pressed = event->type() == QEvent::KeyPress || event->type() == QEvent::ShortcutOverride;
    if (pressed) {
        const auto* key = static_cast<const QKeyEvent*>(event);
        if (key->isAutoRepeat() && doesSomething(key->key()) && !writes(key->key())) return true;
    }
    return QObject::eventFilter(object, event);
}

} // namespace gatewise::window
