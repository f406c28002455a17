#pragma once

#include <array>
#include <vector>

// The earth as a sphere of radius 1. Positions are degrees, north and east positive, or vectors of length 1
// from its middle: x to 0 N 0 E, y to 0 N 90 E, z to the north pole. Arcs are radians.

namespace gatewise::map {

using Vector = std::array<double, 3>;

struct Spot {
    double latitude = 0;
    double longitude = 0;
    friend bool operator==(const Spot&, const Spot&) = default;
};

inline constexpr double kDegree = 3.14159265358979323846 / 180;

/// Whether two numbers of a table are a position: longitudes may go round the earth twice.
bool onEarth(double latitude, double longitude);

Vector vectorOf(const Spot& spot);
/// Longitude above -180 and up to 180; 0 at the poles.
Spot spotOf(const Vector& v);

inline double dot(const Vector& a, const Vector& b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}
Vector cross(const Vector& a, const Vector& b);
/// The vector of length 1 in that direction; (1, 0, 0) for one without length.
Vector unit(const Vector& v);

/// 0 to pi, exact for near points and for opposite ones.
double arcBetween(const Vector& a, const Vector& b);

/// Nautical miles, 60 to the degree.
double milesBetween(const Spot& a, const Spot& b);

/// The point a share (0 to 1) of the way along the great circle from a to b. Of the many ways between
/// opposite points it takes the one over the north pole, or along the meridian of Greenwich between the
/// poles.
Vector between(const Vector& a, const Vector& b, double share);

/// The great circle from a to b in steps of at most `step` radians, both ends included; two points for a way
/// without length.
std::vector<Vector> greatCircle(const Vector& a, const Vector& b, double step);

/// A cap of the sphere: all points up to `radius` from `middle`.
struct Cap {
    Vector middle{1, 0, 0};
    double radius = 0;
};

/// A cap around the points, not always the smallest; the whole sphere where they lie all around it.
Cap capAround(const std::vector<Vector>& points);

} // namespace gatewise::map
