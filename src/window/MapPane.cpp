#include "window/MapPane.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace gatewise::window {

namespace {

constexpr double kBeyond = 1.3; // times as large as the sheet is what is drawn for a hand that moves it
constexpr int kRest = 80;       // milliseconds without a move

MapPictures::Picture sharpOf(const MapLook& look) {
    return std::make_shared<const MapPicture>(drawnMap(look));
}

} // namespace

MapPane::MapPane(std::function<void()> news)
    : news_(std::move(news)), pictures_([this](const Picture& picture) { take(picture); }) {
    look_.scene = std::make_shared<const MapScene>();
    rest_.setSingleShot(true);
    rest_.setInterval(kRest);
    connect(&rest_, &QTimer::timeout, this, [this] {
        if (!settled()) pictures_.order(look_);
    });
}

void MapPane::stand(const MapStand& stand) {
    MapStand& now = look_;
    if (now == stand) return;
    now = stand;
    sharp_.reset();
    wide_.reset();
    changed();
}

void MapPane::show(std::shared_ptr<const MapScene> scene, int chosen, const MapSight& sight) {
    if (!map::samePlaces(*scene, *look_.scene)) {
        sharp_.reset();
        wide_.reset();
    }
    look_.scene = std::move(scene);
    look_.chosen = chosen;
    look_.sight = sight;
    changed();
    if (older() != nullptr) pictures_.order(look_);
}

void MapPane::look(const MapSight& sight) {
    if (sight == look_.sight) return;
    look_.sight = sight;
    changed();
    if (older() == nullptr) return;
    pictures_.order(wide());
    rest_.start();
}

void MapPane::changed() {
    drawing_.reset();
    news_();
}

/// The sight on a larger sheet at the same scale. No sheet shows more than the whole world.
MapLook MapPane::wide() const {
    MapLook wide = look_;
    const double share = std::clamp(map::kMostSpan / look_.sight.span, 1.0, kBeyond);
    wide.sight.span *= share;
    wide.size = {look_.size.width * share, look_.size.height * share};
    wide.corner = {};
    wide.pixels = (QSizeF(wide.size.width, wide.size.height) * look_.factor).toSize();
    return wide;
}

QRectF MapPane::box() const {
    return {look_.corner, QSizeF(look_.size.width, look_.size.height)};
}

const MapPicture* MapPane::older() const {
    return wide_ ? wide_.get() : sharp_.get();
}

void MapPane::take(const Picture& picture) {
    MapLook asked = picture->look;
    asked.font = look_.font;
    const bool sharp = asked == look_;
    const bool stands = older() != nullptr && asked.factor == look_.factor && asked.ground == look_.ground &&
                        map::samePlaces(*asked.scene, *look_.scene);
    if (sharp)
        sharp_ = picture;
    else if (stands)
        wide_ = picture;
    if (sharp) reachBeyond();
    news_();
}

void MapPane::reachBeyond() {
    if (!wide_ || !(wide_->look == wide())) pictures_.order(wide());
}

void MapPane::settle() {
    if (settled()) return;
    sharp_ = sharpOf(look_);
    news_();
}

const Drawing& MapPane::drawing() const {
    if (settled()) return sharp_->drawing;
    if (!drawing_) drawing_ = drawMap(*look_.scene, look_.sight, sheetOf(look_), look_.chosen);
    return *drawing_;
}

void MapPane::paint(QPainter& painter) {
    if (look_.pixels.isEmpty()) return;
    if (!settled() && older() == nullptr) {
        sharp_ = sharpOf(look_);
        reachBeyond();
    }
    painter.save();
    painter.setClipRect(box(), Qt::IntersectClip);
    if (settled()) {
        painter.resetTransform();
        painter.drawImage(QPoint(0, 0), sharp_->image);
    } else {
        paintOlder(painter, *older());
    }
    painter.restore();
}

/// The picture where its middle lies now, and as large as its world is now.
void MapPane::paintOlder(QPainter& painter, const MapPicture& picture) const {
    const map::View now(look_.sight, look_.size);
    const map::View then(picture.look.sight, picture.look.size);
    const auto middle = now.place(map::vectorOf(picture.look.sight.middle));
    if (!middle) return;
    const double scale = now.scale() / then.scale();
    const double desk = look_.factor / look_.ratio;
    const QPointF at = (look_.corner + QPointF(middle->x, middle->y)) * desk;
    const QPointF half =
        (picture.look.corner + QPointF(picture.look.size.width, picture.look.size.height) / 2) * desk * scale;
    const bool same = std::fabs(scale - 1) < 1e-9;
    painter.resetTransform();
    if (same) {
        // On whole pixels: it is copied and stays sharp.
        const QPoint corner = ((at - half) * look_.ratio).toPoint();
        painter.drawImage(QPointF(corner) / look_.ratio, picture.image);
    } else {
        painter.translate(at - half);
        painter.scale(scale, scale);
        painter.drawImage(QPoint(0, 0), picture.image);
    }
}

} // namespace gatewise::window
