#pragma once

#include "platform/Drawing.h"

#include <QFont>
#include <QImage>

#include <vector>

namespace gatewise::window {

/// What is printed as one picture on white: as wide as a sheet of A4 at 300 dots to the inch, as high as it
/// needs, the drawings above the listing. Null when there is no memory for it.
QImage pictureOf(const QFont& font, const QString& text, const std::vector<Drawing>& drawings);

} // namespace gatewise::window
