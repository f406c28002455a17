#include "window/MapPictures.h"

#include "window/ChartView.h"
#include "window/QtText.h"
#include "window/SmoothLines.h"

#include <QFontMetricsF>
#include <QPainter>

#include <exception>
#include <string_view>

namespace gatewise::window {

namespace {

/// A font keeps what it found out about itself: each thread needs one of its own.
QFont apart(const QFont& font) {
    QFont own(font);
    own.setUnderline(!font.underline());
    own.setUnderline(font.underline());
    return own;
}

} // namespace

bool operator==(const MapStand& a, const MapStand& b) {
    return a.size.width == b.size.width && a.size.height == b.size.height && a.corner == b.corner &&
           a.pixels == b.pixels && a.factor == b.factor && a.ratio == b.ratio && a.font == b.font &&
           a.ground == b.ground;
}

bool operator==(const MapLook& a, const MapLook& b) {
    const MapStand& stand = a;
    return a.scene == b.scene && a.chosen == b.chosen && a.sight == b.sight && stand == b;
}

map::Sheet sheetOf(const MapLook& look) {
    const QFontMetricsF metrics(look.font);
    return {look.size, metrics.ascent(),
            [metrics](std::string_view word) { return metrics.horizontalAdvance(toQt(std::string(word))); }};
}

MapPicture drawnMap(const MapLook& look) {
    MapPicture out{look, QImage(look.pixels, QImage::Format_RGB32), {}};
    out.image.setDevicePixelRatio(look.ratio);
    out.image.fill(look.ground);
    out.drawing = drawMap(*look.scene, look.sight, sheetOf(look), look.chosen);
    QPainter painter;
    if (out.image.isNull() || !painter.begin(&out.image)) return out;
    painter.scale(look.factor / look.ratio, look.factor / look.ratio);
    const QRectF box(look.corner, QSizeF(look.size.width, look.size.height));
    const QTransform toPixels = QTransform::fromScale(look.factor, look.factor);
    const QRect clip = toPixels.mapRect(box).toAlignedRect();
    drawDrawing(painter, box, out.drawing, look.font, 0, [&](const QPolygonF& line, const QPen& pen) {
        drawSmoothLine(out.image, clip, toPixels.map(line), pen.widthF() * look.factor, pen.color().rgb());
    });
    return out;
}

void MapPictures::finish() {
    {
        const std::scoped_lock lock(guard_);
        next_.reset();
    }
    pool_.waitForDone();
}

void MapPictures::order(const MapLook& look) {
    const std::scoped_lock lock(guard_);
    next_ = look;
    next_->font = apart(look.font);
    if (working_) return;
    working_ = true;
    pool_.start([this] { work(); });
}

void MapPictures::work() {
    for (;;) {
        MapLook look;
        {
            const std::scoped_lock lock(guard_);
            working_ = next_.has_value();
            if (!working_) return;
            look = std::move(*next_);
            next_.reset();
        }
        try {
            auto picture = std::make_shared<const MapPicture>(drawnMap(look));
            const auto tell = [this, picture] { ready_(picture); };
            if (!picture->image.isNull()) QMetaObject::invokeMethod(this, tell, Qt::QueuedConnection);
        } catch (const std::exception&) {
            // Without memory for it the window draws the map itself.
        }
    }
}

} // namespace gatewise::window
