#pragma once

#include "window/Skin.h"

#include <QObject>

class QMenu;
class QWidget;

namespace gatewise::window {

/// The menus of the right mouse button and of the menu key in fields to type in: cut, copy, paste, all.
class ContextMenus : public QObject {
    Q_OBJECT
public:
    explicit ContextMenus(const Skin& skin);

protected:
    bool eventFilter(QObject* object, QEvent* event) override;

private:
    QMenu* menuOf(QWidget& field) const;
    const Skin& skin_;
};

} // namespace gatewise::window
