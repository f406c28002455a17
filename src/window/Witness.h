#pragma once

#include <QColor>
#include <QPainter>
#include <QPixmap>
#include <QString>

namespace gatewise::window {

/// Hears what the views paint, each text whole before it is wrapped or cut. A proof of the window needs it;
/// the program has none.
class Witness {
public:
    virtual ~Witness() = default;
    virtual void text(const QPaintDevice& on, const QString& text, const QColor& color) = 0;
    virtual void picture(const QPaintDevice& on, const QPixmap& picture) = 0;

    /// The one that listens now, null for none.
    static inline Witness* now = nullptr;
};

} // namespace gatewise::window
