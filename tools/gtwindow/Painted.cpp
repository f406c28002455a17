#include "gtwindow/Painted.h"

#include <QGuiApplication>
#include <QScreen>
#include <QWindow>

namespace gatewise::gtwindow {

namespace {

/// Writes down what goes onto one widget.
class Listener : public window::Witness {
public:
    Listener(const QPaintDevice& on, Painted& painted) : on_(on), painted_(painted) { now = this; }
    ~Listener() override { now = nullptr; }
    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    void text(const QPaintDevice& on, const QString& text, const QColor& color) override {
        if (&on == &on_) painted_.texts.push_back({text, color});
    }
    void picture(const QPaintDevice& on, const QPixmap& picture) override {
        if (&on == &on_) painted_.pictures.push_back(picture);
    }

private:
    const QPaintDevice& on_;
    Painted& painted_;
};

QImage plain(const QPixmap& picture) {
    return picture.toImage().convertToFormat(QImage::Format_RGB32);
}

/// Only a platform without a display tells what a window shows, whatever lies over it.
bool showsWindows() {
    return QGuiApplication::platformName() == "offscreen";
}

/// A part of the window painted at its own place: a shape that a smaller sheet would cut comes out a shade
/// different at the edge.
QPixmap paintedPart(QWidget& window, const QRect& box) {
    static QPixmap sheet; // kept from look to look
    const QSize size = window.size() * window.devicePixelRatioF();
    if (sheet.size() != size) sheet = QPixmap(size);
    sheet.setDevicePixelRatio(window.devicePixelRatioF());
    window.render(&sheet, box.topLeft(), box);
    const double ratio = sheet.devicePixelRatio();
    return sheet.copy(QRectF(box.topLeft() * ratio, QSizeF(box.size()) * ratio).toAlignedRect());
}

Painted paintOnce(window::ScreenWindow& window, const QRect& box, const QPaintDevice& on) {
    Painted painted;
    QPixmap fresh;
    {
        const Listener listener(on, painted);
        fresh = paintedPart(window, box);
    }
    if (!showsWindows() || box.isEmpty()) return painted;
    QScreen* screen = window.windowHandle()->screen();
    const QPixmap shown = screen->grabWindow(window.winId(), box.x(), box.y(), box.width(), box.height());
    painted.stale = plain(shown) != plain(fresh);
    return painted;
}

} // namespace

Painted paintOf(window::ScreenWindow& window, QWidget& widget, const QPaintDevice& on) {
    constexpr int kMostTurns = 3; // of the loop, until what is marked for painting has been painted
    const QRect box = QRect(widget.mapTo(&window, QPoint(0, 0)), widget.size()) & window.rect();
    Painted painted = paintOnce(window, box, on);
    for (int turn = 0; painted.stale && turn < kMostTurns; ++turn) {
        QCoreApplication::processEvents();
        QEvent due(QEvent::UpdateRequest);
        QCoreApplication::sendEvent(&window, &due);
        painted = paintOnce(window, box, on);
    }
    return painted;
}

} // namespace gatewise::gtwindow
