#include "import/Sphere.h"

#include <algorithm>

namespace gatewise::importer {

namespace {

Vector cross(const Vector& a, const Vector& b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

double length(const Vector& v) {
    return std::sqrt(dot(v, v));
}

} // namespace

Vector vectorOf(const Place& place) {
    const double latitude = place.latitude * kDegree;
    const double longitude = place.longitude * kDegree;
    return {std::cos(latitude) * std::cos(longitude), std::cos(latitude) * std::sin(longitude),
            std::sin(latitude)};
}

double distance(const Place& a, const Place& b) {
    return distance(vectorOf(a), vectorOf(b));
}

double wrapped(double degrees) {
    const double rest = std::fmod(degrees, 360.0);
    return rest < 0 ? rest + 360 : rest;
}

double course(const Place& a, const Place& b) {
    const double across = (b.longitude - a.longitude) * kDegree;
    const double lat1 = a.latitude * kDegree;
    const double lat2 = b.latitude * kDegree;
    const double y = std::sin(across) * std::cos(lat2);
    const double x = std::cos(lat1) * std::sin(lat2) - std::sin(lat1) * std::cos(lat2) * std::cos(across);
    return x == 0 && y == 0 ? 0 : wrapped(std::atan2(y, x) / kDegree);
}

Place travel(const Place& from, double course, double miles) {
    const double way = miles / kRadius;
    const double lat = from.latitude * kDegree;
    const double sine =
        std::sin(lat) * std::cos(way) + std::cos(lat) * std::sin(way) * std::cos(course * kDegree);
    const double there = std::asin(std::clamp(sine, -1.0, 1.0));
    const double across = std::atan2(std::sin(course * kDegree) * std::sin(way) * std::cos(lat),
                                     std::cos(way) - std::sin(lat) * sine);
    const double longitude = wrapped(from.longitude + across / kDegree + 180) - 180;
    return {there / kDegree, longitude};
}

double turn(const Vector& a, const Vector& b, const Vector& c) {
    const Vector in = cross(a, b);
    const Vector out = cross(b, c);
    const double both = length(in) * length(out);
    if (both < 1e-18) return 0;
    return std::acos(std::clamp(dot(in, out) / both, -1.0, 1.0)) / kDegree;
}

} // namespace gatewise::importer
