#pragma once

#include "window/Desk.h"
#include "window/Witness.h"

#include <QImage>

namespace gatewise::gtwindow {

/// What one paint of a widget puts on the screen.
struct Painted {
    struct Text {
        QString text; // whole, before it is wrapped or cut
        QColor color;
    };
    std::vector<Text> texts;
    std::vector<QPixmap> pictures;
    /// The screen shows something else than this paint would put there: a repaint is missing.
    bool stale = false;
};

/// Paints a widget of a window anew, `on` being where its own drawing goes.
Painted paintOf(window::ScreenWindow& window, QWidget& widget, const QPaintDevice& on);

} // namespace gatewise::gtwindow
