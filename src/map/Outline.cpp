#include "map/LandData.h"
#include "map/Projection.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace gatewise::map {

namespace {

constexpr std::size_t kPiece = 48;   // points
constexpr std::size_t kStretch = 96; // points

/// Square of the distance of points from the chord between a and b, which for short arcs is that from the
/// great circle.
class FromChord {
public:
    FromChord(const Vector& a, const Vector& b)
        : a_(a), way_{b[0] - a[0], b[1] - a[1], b[2] - a[2]}, size_(dot(way_, way_)), lifts_(size_ > kShort) {
    }
    [[nodiscard]] double square(const Vector& p) const {
        const Vector off{p[0] - a_[0], p[1] - a_[1], p[2] - a_[2]};
        const double share = size_ > 0 ? std::clamp(dot(off, way_) / size_, 0.0, 1.0) : 0;
        Vector foot{a_[0] + share * way_[0], a_[1] + share * way_[1], a_[2] + share * way_[2]};
        // A long chord runs below its arc.
        if (lifts_) foot = unit(foot);
        const Vector rest{p[0] - foot[0], p[1] - foot[1], p[2] - foot[2]};
        return dot(rest, rest);
    }

private:
    static constexpr double kShort = 1e-4; // square of a chord whose arc bulges by less than 0.001 degrees
    Vector a_, way_;
    double size_;
    bool lifts_;
};

/// The area to the left of the ring on a map around its middle, where areas are true: its sign tells on which
/// side the smaller part lies.
int turnOf(const std::vector<Vector>& points, const Cap& cap) {
    const Projection projection(cap.middle);
    double area = 0;
    PlanePoint last = projection.place(points.back());
    for (const Vector& v : points) {
        const PlanePoint here = projection.place(v);
        area += last.x * here.y - here.x * last.y;
        last = here;
    }
    return area < 0 ? -1 : 1;
}

Cap capOfPiece(const Outline& outline, std::size_t first, std::size_t count) {
    std::vector<Vector> points;
    for (std::size_t i = 0; i <= count; ++i)
        points.push_back(wide(outline.points[(first + i) % outline.points.size()]));
    if (!outline.ring && first + count == outline.points.size()) points.pop_back();
    return capAround(points);
}

} // namespace

std::vector<Vector> simplified(const std::vector<Vector>& line, double tolerance) {
    if (line.size() < 3) return line;
    std::vector<bool> keep(line.size());
    keep.front() = keep.back() = true;
    // In short stretches, whose ends stay too: the work for a coast of 100,000 points is halved.
    std::vector<std::pair<std::size_t, std::size_t>> open;
    for (std::size_t a = 0; a + 1 < line.size(); a += kStretch) {
        const std::size_t b = std::min(a + kStretch, line.size() - 1);
        keep[b] = true;
        open.emplace_back(a, b);
    }
    while (!open.empty()) {
        const auto [a, b] = open.back();
        open.pop_back();
        const FromChord chord(line[a], line[b]);
        double far = tolerance * tolerance;
        std::size_t at = a;
        for (std::size_t i = a + 1; i < b; ++i) {
            const double square = chord.square(line[i]);
            if (square > far) far = square, at = i;
        }
        if (at == a) continue;
        keep[at] = true;
        open.emplace_back(a, at);
        open.emplace_back(at, b);
    }
    std::vector<Vector> out;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (keep[i]) out.push_back(line[i]);
    }
    return out;
}

Outline outlineOf(const std::vector<Vector>& points, bool ring) {
    Outline out;
    out.ring = ring;
    if (points.size() < (ring ? 3U : 2U)) return out;
    for (const Vector& v : points)
        out.points.push_back({static_cast<float>(v[0]), static_cast<float>(v[1]), static_cast<float>(v[2])});
    out.cap = capAround(points);
    if (ring) out.turn = turnOf(points, out.cap);
    for (std::size_t first = 0; first < points.size(); first += kPiece) {
        const std::size_t count = std::min(kPiece, points.size() - first);
        out.pieces.push_back({first, count, capOfPiece(out, first, count)});
    }
    return out;
}

} // namespace gatewise::map
