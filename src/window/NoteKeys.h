#pragma once

#include "window/Skin.h"

#include <QWidget>

namespace gatewise::window {

/// The keys of a note about a file: one that opens its folder, and for a page to read (PDF) one that opens
/// the file. They stand in a row of `width` pixels; null where there is no file.
QWidget* makeOpenKeys(const QString& file, int width, const Skin& skin, QWidget* parent);

} // namespace gatewise::window
