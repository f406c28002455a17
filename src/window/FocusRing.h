#pragma once

#include "window/Zoom.h"

#include <QWidget>

namespace gatewise::window {

/// The one ring that shows where the keyboard is, above everything in its window.
class FocusRing : public QWidget {
    Q_OBJECT
public:
    FocusRing(QWidget* window, const Zoom& zoom);
    /// Lies around a box of the window; an empty box takes it away.
    void surround(const QRect& box);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const Zoom& zoom_;
    QRect box_;
};

} // namespace gatewise::window
