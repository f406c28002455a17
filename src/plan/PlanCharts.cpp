#include "plan/PlanCharts.h"

#include "plan/ProfileSheet.h"
#include "platform/Numbers.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace gatewise {

namespace {

constexpr double kDegree = std::numbers::pi / 180;

/// A round step that parts `range` into at most `parts`.
double roundStep(double range, int parts) {
    const double rough = range / parts;
    const double magnitude = std::pow(10, std::floor(std::log10(rough)));
    for (const double factor : {1.0, 2.0, 5.0}) {
        if (rough <= factor * magnitude) return factor * magnitude;
    }
    return 10 * magnitude;
}

/// Adds a mark; its word only where no earlier word stands close.
void addMark(Drawing& drawing, const DrawingPoint& at, Tone tone, std::string_view label) {
    // A map stands in a square, a profile is stretched: a word takes more of the former's width.
    const DrawingPoint room = drawing.square ? DrawingPoint{0.24, 0.08} : DrawingPoint{0.11, 0.12};
    const bool crowded = std::any_of(drawing.marks.begin(), drawing.marks.end(), [&](const DrawingMark& m) {
        return !m.label.empty() && std::fabs(m.at.x - at.x) < room.x && std::fabs(m.at.y - at.y) < room.y;
    });
    drawing.marks.push_back({at, tone, crowded ? std::string() : std::string(label)});
}

/// The important words are set first, so that fixes give way to airports and tops.
template<class Place> void addMarks(Drawing& drawing, const Plan& plan, Place place) {
    for (const Tone tone : {Tone::Airport, Tone::Top, Tone::Step, Tone::Fix}) {
        for (int i = 0; i <= plan.planLast; ++i) {
            if (pointTone(plan, i) == tone) addMark(drawing, place(i), tone, plan.at(i).pointName.trimmed());
        }
    }
}

std::string summaryOf(const Plan& plan) {
    return std::string(plan.departureAirport.Icao.trimmed()) + " to " +
           std::string(plan.destinationAirport.Icao.trimmed()) + ", " +
           formatSingle("#####0", plan.totalDistance) + " nautical miles, highest altitude " +
           std::to_string(plan.peakAltitude) + " feet";
}

} // namespace

Drawing profileDrawing(const Plan& plan) {
    Drawing out;
    if (!isDrawable(plan)) return out;
    const ProfileSheet place(plan);
    const double length = place.length;
    const double highest = place.highest;
    const double feetStep = std::max(roundStep(highest, 5), 1000.0);
    for (double feet = 0; feet <= highest; feet += feetStep) {
        out.lines.push_back({{place(0, feet), place(length, feet)}, Tone::Grid});
        out.texts.push_back({{kProfileLeft - 0.01, place(0, feet).y}, formatNumber("000", feet / 100), true});
    }
    const double milesStep = roundStep(length, 6);
    for (double miles = 0; miles <= length; miles += milesStep) {
        out.texts.push_back({{place(miles, 0).x, kProfileBottom + 0.07}, formatNumber("#####0", miles)});
    }
    DrawingLine profile{{}, Tone::Route};
    for (int i = 0; i <= plan.planLast; ++i) {
        profile.points.push_back(place(plan, i));
    }
    const auto points = profile.points;
    out.lines.push_back(std::move(profile));
    addMarks(out, plan, [&](int i) { return points[static_cast<std::size_t>(i)]; });
    out.summary = "Vertical profile, " + summaryOf(plan);
    return out;
}

namespace {

using Vector = std::array<double, 3>; // on the unit sphere

Vector vectorOf(double latitude, double longitude) {
    const double lat = latitude * kDegree;
    const double lon = longitude * kDegree;
    return {std::cos(lat) * std::cos(lon), std::cos(lat) * std::sin(lon), std::sin(lat)};
}

Vector pointVector(const PlanPoint& p) {
    return vectorOf(static_cast<double>(p.pointLatitude), static_cast<double>(p.pointLongitude));
}

double dot(const Vector& a, const Vector& b) {
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

Vector unit(const Vector& v) {
    const double size = std::sqrt(dot(v, v));
    return size > 1e-9 ? Vector{v[0] / size, v[1] / size, v[2] / size} : Vector{1, 0, 0};
}

/// The point a share of the way along the great circle from a to b.
Vector between(const Vector& a, const Vector& b, double share) {
    const double angle = std::acos(std::clamp(dot(a, b), -1.0, 1.0));
    const double root = std::sin(angle);
    if (root < 1e-6) return a;
    const double f = std::sin((1 - share) * angle) / root;
    const double g = std::sin(share * angle) / root;
    return unit({f * a[0] + g * b[0], f * a[1] + g * b[1], f * a[2] + g * b[2]});
}

/// Azimuthal equidistant around a centre, north up, in degrees of arc.
class Projection {
public:
    explicit Projection(const Vector& centre) : centre_(centre) {
        east_ = unit({-centre[1], centre[0], 0});
        north_ = {centre[1] * east_[2] - centre[2] * east_[1], centre[2] * east_[0] - centre[0] * east_[2],
                  centre[0] * east_[1] - centre[1] * east_[0]};
    }
    [[nodiscard]] double latitude() const { return std::asin(std::clamp(centre_[2], -1.0, 1.0)) / kDegree; }
    [[nodiscard]] double longitude() const { return std::atan2(centre_[1], centre_[0]) / kDegree; }
    [[nodiscard]] DrawingPoint place(const Vector& v) const {
        const double arc = std::acos(std::clamp(dot(v, centre_), -1.0, 1.0));
        const double x = dot(v, east_);
        const double y = dot(v, north_);
        const double size = std::hypot(x, y);
        const double scale = size > 1e-12 ? arc / kDegree / size : 0;
        return {x * scale, -y * scale};
    }

private:
    Vector centre_, east_{}, north_{};
};

constexpr int kStepsOfLeg = 24;

/// The drawn window in projected degrees: the route's extent with a margin, square.
struct Window {
    double x = 0, y = 0, half = 1;

    [[nodiscard]] DrawingPoint place(const DrawingPoint& p) const {
        return {0.5 + (p.x - x) / half * 0.5, 0.5 + (p.y - y) / half * 0.5};
    }
    /// Wider than the square, so that a wide sheet is filled.
    [[nodiscard]] bool holds(const DrawingPoint& p) const {
        return std::fabs(p.x - x) <= half * 2.5 && std::fabs(p.y - y) <= half;
    }
    /// Degrees of arc from the projection's centre beyond which nothing is held.
    [[nodiscard]] double reach() const {
        return std::hypot(std::fabs(x) + half * 2.5, std::fabs(y) + half) + 1e-6;
    }
};

Window windowAround(const std::vector<DrawingPoint>& points) {
    double left = points[0].x, right = left, top = points[0].y, bottom = top;
    for (const auto& p : points) {
        left = std::min(left, p.x), right = std::max(right, p.x);
        top = std::min(top, p.y), bottom = std::max(bottom, p.y);
    }
    return {(left + right) / 2, (top + bottom) / 2, std::max({right - left, bottom - top, 0.2}) * 0.6};
}

/// The part of the globe that the window can hold, so that a short route does not project the whole of it.
class Neighbourhood {
public:
    Neighbourhood(const Projection& projection, double reach)
        : latitude_(projection.latitude()), longitude_(projection.longitude()), reach_(reach),
          // Where a pole is in reach, every longitude is.
          span_(reach + std::fabs(latitude_) < 89
                    ? std::asin(std::sin(reach * kDegree) / std::cos(latitude_ * kDegree)) / kDegree + 1e-6
                    : 180) {}
    [[nodiscard]] bool hasLatitude(double lat) const { return std::fabs(lat - latitude_) <= reach_; }
    [[nodiscard]] bool hasLongitude(double lon) const {
        return std::fabs(std::remainder(lon - longitude_, 360)) <= span_;
    }

private:
    double latitude_, longitude_, reach_, span_;
};

/// One line of the grid, in the pieces that lie inside the window.
template<class Near, class At>
void addGridLine(Drawing& out, const Window& window, double from, double to, double step, Near near, At at) {
    DrawingLine piece;
    const auto finish = [&] {
        if (piece.points.size() > 1) out.lines.push_back(piece);
        piece.points.clear();
    };
    for (double t = from; t <= to + step / 2; t += step) {
        if (!near(t)) {
            finish();
            continue;
        }
        const DrawingPoint p = at(t);
        if (window.holds(p))
            piece.points.push_back(window.place(p));
        else
            finish();
    }
    finish();
}

void addGrid(Drawing& out, const Projection& projection, const Window& window) {
    const double step = window.half > 40 ? 20 : window.half > 15 ? 10 : window.half > 6 ? 5 : 1;
    const double fine = step / 10;
    const Neighbourhood near(projection, window.reach());
    for (double lat = -80; lat <= 80; lat += step) {
        if (!near.hasLatitude(lat)) continue;
        addGridLine(
            out, window, -180, 180, fine, [&](double lon) { return near.hasLongitude(lon); },
            [&](double lon) { return projection.place(vectorOf(lat, lon)); });
    }
    for (double lon = -180; lon < 180; lon += step) {
        if (!near.hasLongitude(lon)) continue;
        addGridLine(
            out, window, -80, 80, fine, [&](double lat) { return near.hasLatitude(lat); },
            [&](double lat) { return projection.place(vectorOf(lat, lon)); });
    }
}

} // namespace

Drawing mapDrawing(const Plan& plan) {
    Drawing out;
    if (!isDrawable(plan)) return out;
    const Vector first = pointVector(plan.at(0));
    const Vector last = pointVector(plan.at(plan.planLast));
    const Projection projection(between(first, last, 0.5));

    std::vector<DrawingPoint> route;
    std::vector<DrawingPoint> points;
    for (int i = 0; i <= plan.planLast; ++i) {
        const Vector here = pointVector(plan.at(i));
        for (int s = 1; i > 0 && s <= kStepsOfLeg; ++s) {
            const Vector on =
                between(pointVector(plan.at(i - 1)), here, static_cast<double>(s) / kStepsOfLeg);
            route.push_back(projection.place(on));
        }
        points.push_back(projection.place(here));
    }
    route.insert(route.begin(), points.front());

    const Window window = windowAround(route);
    out.square = true;
    addGrid(out, projection, window);
    DrawingLine line{{}, Tone::Route};
    for (const auto& p : route) line.points.push_back(window.place(p));
    out.lines.push_back(std::move(line));
    addMarks(out, plan, [&](int i) { return window.place(points[static_cast<std::size_t>(i)]); });
    out.summary = "Route map, " + summaryOf(plan);
    return out;
}

} // namespace gatewise
