#include "map/Sight.h"

#include <algorithm>
#include <cmath>

namespace gatewise::map {

namespace {

constexpr double kFarthest = 160 * kDegree;
constexpr double kRoom = 1.03;         // beyond the corners, so that nothing ends within the sheet
constexpr double kMostLatitude = 89.5; // of a middle, so that north stays up
constexpr double kMargin = 1.22;       // around what is to be seen
constexpr double kLeastFit = 0.35;     // degrees
constexpr double kSampleStep = 2 * kDegree;

MapSight withMiddle(const MapSight& sight, const Vector& middle) {
    const Spot spot = spotOf(middle);
    return {{std::clamp(spot.latitude, -kMostLatitude, kMostLatitude), spot.longitude}, sight.span};
}

std::vector<Vector> pointsOf(const MapScene& scene) {
    std::vector<Vector> out;
    for (const auto& place : scene.places) out.push_back(vectorOf(place.at));
    for (const auto& route : scene.routes) {
        for (std::size_t i = 1; i < route.points.size(); ++i) {
            const auto leg =
                greatCircle(vectorOf(route.points[i - 1]), vectorOf(route.points[i]), kSampleStep);
            out.insert(out.end(), leg.begin(), leg.end());
        }
    }
    return out;
}

struct Extent {
    double left = 1e9, right = -1e9, bottom = 1e9, top = -1e9;
    void add(const PlanePoint& p) {
        left = std::min(left, p.x), right = std::max(right, p.x);
        bottom = std::min(bottom, p.y), top = std::max(top, p.y);
    }
};

Extent extentOf(const std::vector<Vector>& points, const Vector& middle) {
    const Projection projection(middle);
    Extent extent;
    for (const Vector& v : points) extent.add(projection.place(v));
    return extent;
}

} // namespace

View::View(const MapSight& sight, const SheetSize& size)
    : size_(size), scale_(std::max(1.0, std::min(size.width, size.height)) /
                          (std::clamp(sight.span, kLeastSpan, kMostSpan) * kDegree)),
      projection_(vectorOf(sight.middle)) {}

double View::reach() const {
    const double corner = std::hypot(size_.width, size_.height) / 2 / scale_;
    return std::min(arcOfRadius(corner * kRoom), kFarthest);
}

std::optional<SheetPoint> View::place(const Vector& v) const {
    if (dot(v, projection_.middle()) < std::cos(kFarthest)) return std::nullopt;
    return place(projection_.place(v));
}

Vector View::spotAt(const SheetPoint& p) const {
    return projection_.lift({(p.x - size_.width / 2) / scale_, (size_.height / 2 - p.y) / scale_});
}

MapSight fitted(const MapScene& scene, const SheetSize& size) {
    const std::vector<Vector> points = pointsOf(scene);
    if (points.empty()) return {{20, 0}, kMostSpan};
    MapSight sight = withMiddle({}, capAround(points).middle);
    Extent extent;
    for (int i = 0; i < 4; ++i) {
        extent = extentOf(points, vectorOf(sight.middle));
        const PlanePoint middle{(extent.left + extent.right) / 2, (extent.bottom + extent.top) / 2};
        sight = withMiddle(sight, Projection(vectorOf(sight.middle)).lift(middle));
    }
    const double shorter = std::max(1.0, std::min(size.width, size.height));
    extent = extentOf(points, vectorOf(sight.middle));
    const double wide = std::max(-extent.left, extent.right) * 2 * shorter / std::max(1.0, size.width);
    const double high = std::max(-extent.bottom, extent.top) * 2 * shorter / std::max(1.0, size.height);
    sight.span = std::clamp(std::max(wide, high) * kMargin / kDegree, kLeastFit, kMostSpan);
    return sight;
}

MapSight panned(const MapSight& sight, const SheetSize& size, double dx, double dy) {
    return centred(sight, size, {size.width / 2 - dx, size.height / 2 - dy});
}

MapSight zoomed(const MapSight& sight, const SheetSize& size, double factor, const SheetPoint& about) {
    MapSight out = sight;
    out.span = std::clamp(sight.span / factor, kLeastSpan, kMostSpan);
    const Vector kept = View(sight, size).spotAt(about);
    // The map bends a little as its middle moves: some steps bring the spot back under the pointer.
    for (int i = 0; i < 8; ++i) {
        const auto now = View(out, size).place(kept);
        if (!now) break;
        out = panned(out, size, about.x - now->x, about.y - now->y);
    }
    return out;
}

MapSight centred(const MapSight& sight, const SheetSize& size, const SheetPoint& at) {
    return withMiddle(sight, View(sight, size).spotAt(at));
}

} // namespace gatewise::map
