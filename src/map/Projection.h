#pragma once

#include "map/Globe.h"

namespace gatewise::map {

/// A point of the flat map: radians from its middle at the middle's scale, x to the east, y to the north.
struct PlanePoint {
    double x = 0;
    double y = 0;
};

/// The sphere laid flat around a point: north is up there, all areas are true, great circles through the
/// middle are straight. The point opposite is a circle of radius 2; nothing in between is special, neither a
/// pole nor the date line.
class Projection {
public:
    explicit Projection(const Vector& middle);

    [[nodiscard]] PlanePoint place(const Vector& v) const {
        const double along = 1 + dot(v, middle_);
        const double k = kRoot(along);
        return {dot(v, east_) * k, dot(v, north_) * k};
    }
    /// The point of the sphere at a point of the plane; one outside the circle gives the point at its edge.
    [[nodiscard]] Vector lift(const PlanePoint& p) const;
    [[nodiscard]] const Vector& middle() const { return middle_; }

private:
    static double kRoot(double along);
    Vector middle_, east_, north_;
};

/// How far from the middle (radians, 0 to 2) a point `arc` radians away is drawn, and the way back.
double planeRadius(double arc);
double arcOfRadius(double radius);

} // namespace gatewise::map
