#pragma once

#include <QAccessible>

namespace gatewise::window {

/// Tells the toolkit how to describe the views to screen readers. Once in a process.
void installAccessibility();

/// Has a screen reader say something when it has ended what it says now. Nothing without one.
void announce(QWidget& window, const QString& words);

} // namespace gatewise::window
