#pragma once

#include "forms/Forms.h"
#include "window/View.h"

#include <QObject>

class QMenu;
class QWidget;

namespace gatewise::window {

/// The menus of the right mouse button and of the menu key: in fields to type in cut, copy, paste, all; at
/// the key of the help what the help tells of and has no key on every page.
class ContextMenus : public QObject {
    Q_OBJECT
public:
    ContextMenus(Actor& actor, Forms& forms);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    [[nodiscard]] QMenu* emptyMenu(QWidget& owner) const;
    [[nodiscard]] QMenu* menuOf(QWidget& field) const;
    [[nodiscard]] QMenu* helpMenu(QWidget& key);
    bool asked(View& view, QEvent& event);

    Actor& actor_;
    Forms& forms_;
};

} // namespace gatewise::window
