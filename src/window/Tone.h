#pragma once

#include <QColor>
#include <QImage>

// The second skin: the same layout and pictures with the darkest made black, the lightest white, and every
// text in a colour that stands out from both.

namespace gatewise::window {

/// Whether the skin of high contrast is on. One for the process, as there is one skin.
bool highContrast();
void setHighContrast(bool on);

/// A ground, a text and an edge as the skin of now shows them; as they are without the second skin.
QColor groundOf(const QColor& color);
QColor inkOf(const QColor& color);
QColor edgeOf(const QColor& color);

/// The tones of a picture, in place.
void setTones(QImage& picture);

} // namespace gatewise::window
