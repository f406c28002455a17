#pragma once

#include "gtwindow/Keyboard.h"
#include "gtwindow/Pointer.h"

#include <QAbstractItemView>

namespace gatewise::gtwindow {

/// What a hand does in lists. Each returns false when the person cannot bring it about.

/// The table of a list that is up, null otherwise.
QAbstractItemView* tableOf(const Pointer& pointer, const Control& list);

/// A point of a row, scrolled to; nothing when it cannot be reached.
std::optional<Spot> rowSpot(Pointer& pointer, const Control& list, int row);

/// Where an event goes that means the picked row: that row, or beside the rows when none is picked.
std::optional<Spot> pickedSpot(Pointer& pointer, const Control& list, int picked);

bool chooseRow(Pointer& pointer, const Control& list, int row);
/// Opens the list of a combo box and clicks an item there.
bool chooseItem(Pointer& pointer, const Control& combo, int item);
bool clickColumn(Pointer& pointer, const ListView& list, int column);
/// Moves a folder list by double clicks, a drive list by choosing, to where `path` lies.
void walkFolders(Pointer& pointer, PathList& list, const std::string& path);

} // namespace gatewise::gtwindow
