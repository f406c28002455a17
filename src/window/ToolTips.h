#pragma once

#include <QEvent>
#include <QString>

namespace gatewise::window {

class View;

/// What a view tells beside the pointer where its form says nothing: the words of a key that has only a
/// picture, what the head of a column is for. Empty where there is nothing to tell.
QString tipOf(const View& view);

/// Shows the tip of the view under the pointer; false for an event that is none of that.
bool showTip(QObject* object, QEvent* event);

} // namespace gatewise::window
