#pragma once

#include "window/MapPictures.h"

#include <QPainter>
#include <QTimer>

namespace gatewise::window {

/// A map that follows the hand at any size. While it is moved, what was drawn before is shown where it lies
/// now: a picture that reaches beyond the edges, drawn anew beside the window's own work as fast as that
/// goes. What is at rest is always the map itself, drawn for just this sight.
class MapPane : public QObject {
    Q_OBJECT
public:
    /// `news` is told when there is something else to paint.
    explicit MapPane(std::function<void()> news);

    /// Another stand: it is drawn at once.
    void stand(const MapStand& stand);
    /// Another scene or choice. What shows other places is drawn at once.
    void show(std::shared_ptr<const MapScene> scene, int chosen, const MapSight& sight);
    /// The same, seen from elsewhere.
    void look(const MapSight& sight);

    /// On a painter in pixels of the layout, clipped to the sheet.
    void paint(QPainter& painter);
    /// What is seen, as lines and marks.
    [[nodiscard]] const Drawing& drawing() const;

    [[nodiscard]] const MapScene& scene() const { return *look_.scene; }
    [[nodiscard]] int chosen() const { return look_.chosen; }
    [[nodiscard]] const MapSight& sight() const { return look_.sight; }
    /// Whether the map itself is painted, not what was drawn of it before.
    [[nodiscard]] bool settled() const { return sharp_ && sharp_->look == look_; }
    /// Waits for no hand: draws it now.
    void settle();
    /// Nothing is drawn beside the window's own work any more.
    void finish() { pictures_.finish(); }

private:
    using Picture = MapPictures::Picture;
    [[nodiscard]] MapLook wide() const;
    [[nodiscard]] QRectF box() const;
    [[nodiscard]] const MapPicture* older() const;
    void changed();
    void take(const Picture& picture);
    void reachBeyond();
    void paintOlder(QPainter& painter, const MapPicture& picture) const;

    std::function<void()> news_;
    MapLook look_;
    Picture sharp_;                          // as it is painted at rest
    Picture wide_;                           // reaches beyond the edges
    mutable std::optional<Drawing> drawing_; // of now, where nothing sharp has it
    QTimer rest_;
    MapPictures pictures_; // last: ends before what it tells
};

} // namespace gatewise::window
