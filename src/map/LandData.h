#pragma once

#include "map/Globe.h"
#include "platform/Binary.h"

#include <memory>
#include <string_view>
#include <vector>

// The land below the maps: coasts, lakes and borders of the world, from land.bin (its layout stands in
// data/land/README.md) in several degrees of detail.

namespace gatewise::map {

using ShortVector = std::array<float, 3>; // a vector of length 1 in single precision: a metre on the ground

/// The same direction in double precision.
inline Vector wide(const ShortVector& v) {
    return {static_cast<double>(v[0]), static_cast<double>(v[1]), static_cast<double>(v[2])};
}

/// A ring, whose last point is joined to its first, or a line.
struct Outline {
    /// Some points in a row, from `first` on, and the edge that leads to the next: what lies within `cap`.
    struct Piece {
        std::size_t first = 0;
        std::size_t count = 0;
        Cap cap;
    };
    std::vector<ShortVector> points;
    std::vector<Piece> pieces;
    Cap cap;
    bool ring = false;
    int turn = 0; // of a ring: 1 when the smaller part of the sphere lies to its left, else -1
};

/// The same world in one degree of detail.
struct LandLevel {
    double tolerance = 0; // radians by which the outlines may be off
    std::vector<Outline> land, lakes, borders;
};

/// A level is made when it is first asked for: most maps need a coarse one, which is a tenth of the work.
struct Land {
    Land() = default;
    /// The file's bytes as they are; without any level when they are no such file or break off.
    explicit Land(Bytes file);

    /// Number of levels, 0 the finest.
    [[nodiscard]] std::size_t levels() const;
    [[nodiscard]] const LandLevel& at(std::size_t level) const;
    /// The coarsest level that is as fine as `tolerance` (radians), else the finest; null without land.
    [[nodiscard]] const LandLevel* level(double tolerance) const;

private:
    class Maker;
    std::shared_ptr<Maker> maker_;
};

/// Points of a line of which none left out is more than `tolerance` radians away from it; the ends stay.
std::vector<Vector> simplified(const std::vector<Vector>& line, double tolerance);

/// An outline ready for drawing. A ring of fewer than 3 points or a line of fewer than 2 gives one without
/// points.
Outline outlineOf(const std::vector<Vector>& points, bool ring);

/// The land of a file on disk, read once for all who ask while one of them still holds it.
std::shared_ptr<const Land> readLand(std::string_view path);

} // namespace gatewise::map
