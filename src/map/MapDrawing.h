#pragma once

#include "map/Sight.h"

#include <functional>
#include <string>
#include <string_view>

// A map as a drawing: the sheet's width and height are 1.

namespace gatewise::map {

/// What the drawing must know of whoever shows it.
struct Sheet {
    SheetSize size;
    double wordHeight = 10; // pixels, of capitals and figures
    /// Pixels of a word; without it a narrow face is supposed.
    std::function<double(std::string_view)> wordWidth;
    double grain = 0.6; // pixels that an outline may lose

    [[nodiscard]] double widthOf(std::string_view word) const;
};

/// Land, lakes, borders, a grid of degrees, the routes as great circles, places with their names where there
/// is room, runways where they are large enough to be seen, and a bar with its length in nautical miles. The
/// place or route of id `chosen` stands out.
Drawing drawMap(const MapScene& scene, const MapSight& sight, const Sheet& sheet, int chosen = -1);

/// A round number of nautical miles for a bar of at most `pixels`, and the bar's pixels.
struct ScaleBar {
    double miles = 0;
    double pixels = 0;
};
ScaleBar scaleBar(double pixelsOfRadian, double pixels);

/// The mark nearest to a point of the sheet (in its unit square), within `radius` pixels; null without one.
const DrawingMark* markNear(const Drawing& drawing, const SheetSize& size, const DrawingPoint& at,
                            double radius);

/// The route that can be picked and passes nearest, within `radius` pixels.
const DrawingLine* lineNear(const Drawing& drawing, const SheetSize& size, const DrawingPoint& at,
                            double radius);

} // namespace gatewise::map
