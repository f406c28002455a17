#pragma once

#include "forms/Control.h"

#include <QPainter>

namespace gatewise::window {

/// Whether a label is the head of a column by which its table can be sorted.
bool sortsTable(const Control& control);

/// The sign of a label in its box: a lit line under the page in view, an arrow at the column that a table is
/// sorted by, a dim one at those that it can be sorted by.
void drawMark(QPainter& painter, const QRect& box, const Label& label);

} // namespace gatewise::window
