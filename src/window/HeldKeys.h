#pragma once

#include <QObject>

namespace gatewise::window {

/// A key that is held repeats moves and typing only. Enter, Space, Escape and the menu key do something once,
/// and again only when they are pressed again: a repeat of theirs reaches nothing but a text.
class HeldKeys : public QObject {
    Q_OBJECT
public:
    HeldKeys();

protected:
    bool eventFilter(QObject* object, QEvent* event) override;
};

} // namespace gatewise::window
