#pragma once

#include "map/Projection.h"
#include "platform/MapScene.h"

#include <optional>

// What of a map is seen on a sheet of so many pixels, and how that is moved.

namespace gatewise::map {

/// Degrees of a sight's span.
inline constexpr double kLeastSpan = 0.05, kMostSpan = 230;

struct SheetSize {
    double width = 400;  // pixels
    double height = 400; // pixels
};

struct SheetPoint {
    double x = 0; // pixels from the left
    double y = 0; // pixels from the top
};

inline Vector vectorOf(const MapSpot& spot) {
    return vectorOf(Spot{spot.latitude, spot.longitude});
}

/// A sheet with a sight laid upon it.
class View {
public:
    View(const MapSight& sight, const SheetSize& size);

    /// Pixels of a radian in the middle.
    [[nodiscard]] double scale() const { return scale_; }
    [[nodiscard]] const Projection& projection() const { return projection_; }
    [[nodiscard]] const SheetSize& size() const { return size_; }
    /// Radius in radians of the part of the sphere that the sheet can show, its corners included; what lies
    /// farther than 160 degrees is never shown.
    [[nodiscard]] double reach() const;
    [[nodiscard]] SheetPoint place(const PlanePoint& p) const {
        return {size_.width / 2 + p.x * scale_, size_.height / 2 - p.y * scale_};
    }
    /// Nothing for a point that is not shown.
    [[nodiscard]] std::optional<SheetPoint> place(const Vector& v) const;
    [[nodiscard]] Vector spotAt(const SheetPoint& p) const;

private:
    SheetSize size_;
    double scale_;
    Projection projection_;
};

/// The sight that shows all places and routes of a scene with a margin; the whole world when there is
/// nothing.
MapSight fitted(const MapScene& scene, const SheetSize& size);

/// Whether the same places stand on both, whatever else is told of them: a sight of one fits the other.
bool samePlaces(const MapScene& a, const MapScene& b);

/// What was in the middle is moved by so many pixels.
MapSight panned(const MapSight& sight, const SheetSize& size, double dx, double dy);

/// `factor` times as large, within the limits; the spot at (x, y) stays where it is.
MapSight zoomed(const MapSight& sight, const SheetSize& size, double factor, const SheetPoint& about);

/// The spot at (x, y) comes into the middle.
MapSight centred(const MapSight& sight, const SheetSize& size, const SheetPoint& at);

} // namespace gatewise::map
