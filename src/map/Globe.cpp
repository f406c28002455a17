#include "map/Globe.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace gatewise::map {

namespace {

constexpr double kNoLength = 1e-12;

/// A direction square to `a`, by way of the north pole, or of Greenwich at a pole.
Vector sideOf(const Vector& a) {
    const Vector pole = std::fabs(a[2]) < 1 - 1e-9 ? Vector{0, 0, 1} : Vector{1, 0, 0};
    const double share = dot(a, pole);
    return unit({pole[0] - share * a[0], pole[1] - share * a[1], pole[2] - share * a[2]});
}

} // namespace

bool onEarth(double latitude, double longitude) {
    return std::isfinite(latitude) && std::isfinite(longitude) && std::fabs(latitude) <= 90 &&
           std::fabs(longitude) <= 720;
}

Vector vectorOf(const Spot& spot) {
    const double lat = spot.latitude * kDegree;
    const double lon = spot.longitude * kDegree;
    return {std::cos(lat) * std::cos(lon), std::cos(lat) * std::sin(lon), std::sin(lat)};
}

Spot spotOf(const Vector& v) {
    const double side = std::hypot(v[0], v[1]);
    const double longitude = side > kNoLength ? std::atan2(v[1], v[0]) / kDegree : 0;
    return {std::atan2(v[2], side) / kDegree, longitude <= -180 ? 180 : longitude};
}

Vector cross(const Vector& a, const Vector& b) {
    return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

Vector unit(const Vector& v) {
    const double size = std::sqrt(dot(v, v));
    return size > kNoLength ? Vector{v[0] / size, v[1] / size, v[2] / size} : Vector{1, 0, 0};
}

double arcBetween(const Vector& a, const Vector& b) {
    const Vector side = cross(a, b);
    return std::atan2(std::sqrt(dot(side, side)), dot(a, b));
}

double milesBetween(const Spot& a, const Spot& b) {
    return arcBetween(vectorOf(a), vectorOf(b)) / kDegree * 60;
}

Vector between(const Vector& a, const Vector& b, double share) {
    const double arc = arcBetween(a, b);
    if (arc < kNoLength) return a;
    // Turn from a towards b within the plane of both.
    const double along = dot(a, b);
    Vector side{b[0] - along * a[0], b[1] - along * a[1], b[2] - along * a[2]};
    side = arc > std::numbers::pi - 1e-9 ? sideOf(a) : unit(side);
    const double c = std::cos(arc * share);
    const double s = std::sin(arc * share);
    return unit({c * a[0] + s * side[0], c * a[1] + s * side[1], c * a[2] + s * side[2]});
}

std::vector<Vector> greatCircle(const Vector& a, const Vector& b, double step) {
    const int parts = std::max(1, static_cast<int>(std::ceil(arcBetween(a, b) / step)));
    std::vector<Vector> out;
    out.reserve(static_cast<std::size_t>(parts) + 1);
    for (int i = 0; i < parts; ++i) out.push_back(between(a, b, static_cast<double>(i) / parts));
    out.push_back(b);
    return out;
}

Cap capAround(const std::vector<Vector>& points) {
    if (points.empty()) return {};
    Vector sum{};
    for (const Vector& p : points) {
        for (std::size_t i = 0; i < 3; ++i) sum[i] += p[i];
    }
    Cap cap{unit(sum), 0};
    // By the longest chord: exact for near points, and one arc for all of them.
    double longest = 0;
    for (const Vector& p : points) {
        const Vector way{p[0] - cap.middle[0], p[1] - cap.middle[1], p[2] - cap.middle[2]};
        longest = std::max(longest, dot(way, way));
    }
    cap.radius = 2 * std::asin(std::min(1.0, std::sqrt(longest) / 2));
    return cap;
}

} // namespace gatewise::map
