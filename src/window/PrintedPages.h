#pragma once

#include "platform/Drawing.h"

#include <QFont>
#include <QPagedPaintDevice>
#include <QStringList>

#include <vector>

// A listing in a fixed pitch on sheets of paper.

namespace gatewise::window {

/// Where drawings stand on a sheet of `room`, one below the other with a gap below each: those with an aspect
/// as wide as the sheet where they all fit, and smaller in the middle where they do not, the others in what
/// is left, which is never less than half.
std::vector<QRectF> chartBoxes(const std::vector<Drawing>& drawings, const QSizeF& room, double gap);

/// The lines of each sheet of `columns` by `rows` characters (both at least 1). Tabs go to every eighth
/// column. A line that is too long goes on below at a blank, under its own beginning. Lines with no empty
/// line between them belong together and stay on one sheet where they fit on one; a sheet begins with no
/// empty line.
std::vector<QStringList> sheetsOf(const QString& text, int columns, int rows);

/// What a listing calls itself: the flight of a release, else its first line.
QString titleOf(const QString& text);

/// Prints the listing, then the drawings on a sheet of their own, one below the other. Each sheet has the
/// title and its number at the foot. False when the device takes nothing.
bool printPages(QPagedPaintDevice& device, const QFont& font, const QString& text,
                const std::vector<Drawing>& drawings);

} // namespace gatewise::window
