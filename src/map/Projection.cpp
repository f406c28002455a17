#include "map/Projection.h"

#include <algorithm>
#include <cmath>

namespace gatewise::map {

namespace {

constexpr double kNearlyOpposite = 1e-9;

} // namespace

Projection::Projection(const Vector& middle)
    : middle_(middle),
      east_(std::hypot(middle[0], middle[1]) > 1e-12 ? unit({-middle[1], middle[0], 0}) : Vector{0, 1, 0}),
      north_(cross(middle, east_)) {}

double Projection::kRoot(double along) {
    return std::sqrt(2 / std::max(along, kNearlyOpposite));
}

Vector Projection::lift(const PlanePoint& p) const {
    const double radius = std::hypot(p.x, p.y);
    if (radius < 1e-15) return middle_;
    const double arc = arcOfRadius(radius);
    const double c = std::cos(arc);
    const double e = std::sin(arc) * p.x / radius;
    const double n = std::sin(arc) * p.y / radius;
    Vector out{};
    for (std::size_t i = 0; i < 3; ++i) out[i] = c * middle_[i] + e * east_[i] + n * north_[i];
    return unit(out);
}

double planeRadius(double arc) {
    return 2 * std::sin(arc / 2);
}

double arcOfRadius(double radius) {
    return 2 * std::asin(std::clamp(radius / 2, 0.0, 1.0));
}

} // namespace gatewise::map
