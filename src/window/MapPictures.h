#pragma once

#include "map/MapDrawing.h"

#include <QFont>
#include <QImage>
#include <QObject>
#include <QThreadPool>

#include <functional>
#include <memory>
#include <mutex>
#include <optional>

namespace gatewise::window {

/// Where a map stands and how it looks there.
struct MapStand {
    map::SheetSize size; // of the sheet, pixels of the layout
    QPointF corner;      // of the sheet within the picture, pixels of the layout
    QSize pixels;        // of the picture
    double factor = 1;   // pixels of the picture to the layout's
    double ratio = 1;    // pixels of the picture to those in which the desk counts
    QFont font;
    QColor ground; // what the map is drawn upon

    friend bool operator==(const MapStand& a, const MapStand& b);
};

/// All that the picture of a map depends on.
struct MapLook : MapStand {
    std::shared_ptr<const MapScene> scene;
    int chosen = -1;
    MapSight sight;

    friend bool operator==(const MapLook& a, const MapLook& b);
};

struct MapPicture {
    MapLook look;
    QImage image;
    Drawing drawing; // what was painted
};

/// The sheet of a look, with its measure of words.
map::Sheet sheetOf(const MapLook& look);

/// On whichever thread; two of them must not use the same font. A null image when there is no memory for it.
MapPicture drawnMap(const MapLook& look);

/// Has pictures drawn beside the window's own work.
class MapPictures : public QObject {
    Q_OBJECT
public:
    using Picture = std::shared_ptr<const MapPicture>;

    /// `ready` is told of each on the thread of the window.
    explicit MapPictures(std::function<void(Picture)> ready) : ready_(std::move(ready)) {}
    ~MapPictures() override { finish(); }

    /// The picture to draw next: of those that wait only the latest is drawn.
    void order(const MapLook& look);
    /// Waits for what is being drawn; what was ordered and not begun is not drawn any more.
    void finish();

private:
    void work();

    std::function<void(Picture)> ready_;
    std::mutex guard_;
    std::optional<MapLook> next_; // behind the guard, as `working_`
    bool working_ = false;
    QThreadPool pool_;
};

} // namespace gatewise::window
