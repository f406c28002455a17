#pragma once

#include <QAccessible>

namespace gatewise::window {

/// The description of an object for screen readers, null for none.
inline QAccessibleInterface* accessOf(QObject* object) {
    return object == nullptr ? nullptr : QAccessible::queryAccessibleInterface(object);
}

} // namespace gatewise::window
