#pragma once

#include <cmath>

// Places on the globe, in degrees and nautical miles, north and east positive.

namespace gatewise::importer {

struct Place {
    double latitude = 0;
    double longitude = 0;
};

/// A place as a point of the unit sphere.
struct Vector {
    double x = 0, y = 0, z = 0;
};

inline constexpr double kDegree = 0.017453292519943295; // radians
inline constexpr double kRadius = 3440.065;             // of the earth, nautical miles

Vector vectorOf(const Place& place);

inline double dot(const Vector& a, const Vector& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}

/// Along the great circle.
inline double distance(const Vector& a, const Vector& b) {
    const double dx = a.x - b.x;
    const double dy = a.y - b.y;
    const double dz = a.z - b.z;
    const double half = 0.5 * std::sqrt(dx * dx + dy * dy + dz * dz);
    return 2 * kRadius * std::asin(half < 1 ? half : 1.0);
}
double distance(const Place& a, const Place& b);

/// The true course from a to b where it begins, 0 up to 360; 0 between the same places.
double course(const Place& a, const Place& b);

/// The place reached from `from` on a course after a distance.
Place travel(const Place& from, double course, double miles);

/// The angle by which the way from a over b to c turns at b, 0 straight on to 180 back; 0 where two of them
/// are the same place.
double turn(const Vector& a, const Vector& b, const Vector& c);

/// An angle brought into 0 up to 360.
double wrapped(double degrees);

} // namespace gatewise::importer
