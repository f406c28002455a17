#include "map/Clip.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace gatewise::map {

namespace {

constexpr double kPi = std::numbers::pi;
constexpr double kRimStep = 0.2; // radians of azimuth between points on the disc's edge
constexpr int kHalvings = 24;    // of an edge, to find where it meets the disc's edge

/// Times that a closed path goes around the middle, counterclockwise.
int timesAround(const Path& path) {
    int times = 0;
    PlanePoint a = path.back();
    for (const PlanePoint& b : path) {
        if ((a.y < 0) != (b.y < 0) && a.x + (b.x - a.x) * a.y / (a.y - b.y) > 0) times += b.y > a.y ? 1 : -1;
        a = b;
    }
    return times;
}

} // namespace

/// Follows a line over the sphere. Outside of the disc a ring goes along its edge, in the direction that the
/// line has from the middle: that leaves what it encloses inside the disc as it is.
class ClipPen {
public:
    ClipPen(const Clipper& clipper, std::vector<Path>& lines, Path* ring)
        : clipper_(clipper), lines_(lines), ring_(ring) {}

    void to(const Vector& v) {
        const bool inside = clipper_.holds(v);
        if (!begun_)
            begin(v, inside);
        else if (inside && inside_)
            add(clipper_.projection_.place(v));
        else if (inside != inside_)
            cross(v, inside);
        else
            pass(v);
        last_ = v, inside_ = inside;
    }
    void finish() {
        if (ring_ && !inside_ && begun_) flush();
        endPiece();
    }

private:
    void begin(const Vector& v, bool inside) {
        begun_ = true;
        if (inside)
            add(clipper_.projection_.place(v), true);
        else
            angle_ = drawn_ = angleOf(v), addRim(drawn_);
    }
    void cross(const Vector& v, bool inside) {
        Vector in = inside ? v : last_;
        Vector out = inside ? last_ : v;
        for (int i = 0; i < kHalvings; ++i) {
            const Vector half = unit({in[0] + out[0], in[1] + out[1], in[2] + out[2]});
            (clipper_.holds(half) ? in : out) = half;
        }
        const PlanePoint at = clipper_.projection_.place(in);
        if (inside) {
            turnTo(std::atan2(at.y, at.x));
            flush();
            add(at, true);
            add(clipper_.projection_.place(v), true);
        } else {
            add(at, true);
            endPiece();
            angle_ = drawn_ = std::atan2(at.y, at.x);
            turnTo(angleOf(v));
        }
    }
    /// Both ends of the edge lie outside; its middle part may not.
    void pass(const Vector& v) {
        const Vector& m = clipper_.projection_.middle();
        const Vector way{v[0] - last_[0], v[1] - last_[1], v[2] - last_[2]};
        const Vector off{m[0] - last_[0], m[1] - last_[1], m[2] - last_[2]};
        const double size = dot(way, way);
        const double share = size > 0 ? std::clamp(dot(off, way) / size, 0.0, 1.0) : 0;
        const Vector near =
            unit({last_[0] + share * way[0], last_[1] + share * way[1], last_[2] + share * way[2]});
        if (share > 0 && share < 1 && clipper_.holds(near)) {
            cross(near, true);
            last_ = near, inside_ = true;
            cross(v, false);
        } else {
            turnTo(angleOf(v));
        }
    }
    void add(const PlanePoint& p, bool always = false) {
        if (!always && !piece_.empty() && std::fabs(p.x - piece_.back().x) < clipper_.grain_ &&
            std::fabs(p.y - piece_.back().y) < clipper_.grain_)
            return;
        piece_.push_back(p);
        if (ring_) ring_->push_back(p);
    }
    void endPiece() {
        if (piece_.size() > 1) lines_.push_back(piece_);
        piece_.clear();
    }
    [[nodiscard]] double angleOf(const Vector& v) const {
        const PlanePoint p = clipper_.projection_.place(v);
        return std::atan2(p.y, p.x);
    }
    void turnTo(double angle) {
        angle_ += std::remainder(angle - angle_, 2 * kPi);
        if (std::fabs(angle_ - drawn_) > kRimStep) flush();
    }
    void flush() {
        if (!ring_) return;
        const double way = angle_ - drawn_;
        const int parts = std::max(1, static_cast<int>(std::fabs(way) / kRimStep));
        for (int i = 1; i <= parts; ++i) addRim(drawn_ + way * i / parts);
        drawn_ = angle_;
    }
    void addRim(double angle) {
        if (ring_) ring_->push_back({clipper_.rim_ * std::cos(angle), clipper_.rim_ * std::sin(angle)});
    }

    const Clipper& clipper_;
    std::vector<Path>& lines_;
    Path* ring_;
    Path piece_;
    Vector last_{};
    bool begun_ = false, inside_ = false;
    double angle_ = 0; // of the point outside, turned on without a jump
    double drawn_ = 0; // to which the ring follows the disc's edge already
};

Clipper::Clipper(const Projection& projection, double reach, double grain)
    : projection_(projection), reach_(reach), cosReach_(std::cos(reach)), rim_(planeRadius(reach)),
      grain_(grain) {}

bool Clipper::misses(const Cap& cap) const {
    const double along = dot(cap.middle, projection_.middle());
    const double both = reach_ + cap.radius;
    return both < kPi && along < std::cos(both);
}

template<class Pen> void Clipper::draw(const Outline& outline, Pen& pen) const {
    for (const auto& piece : outline.pieces) {
        // Around the opposite point the direction from the middle may turn within a piece.
        const bool whole = !misses(piece.cap) ||
                           dot(piece.cap.middle, projection_.middle()) < -std::cos(piece.cap.radius + 0.01);
        const std::size_t count = whole ? piece.count : 1;
        for (std::size_t i = 0; i < count; ++i) pen.to(wide(outline.points[piece.first + i]));
    }
    pen.to(wide(outline.ring ? outline.points.front() : outline.points.back()));
    pen.finish();
}

void Clipper::addLine(const std::vector<Vector>& line, std::vector<Path>& out) const {
    ClipPen pen(*this, out, nullptr);
    for (const Vector& v : line) pen.to(v);
    pen.finish();
}

void Clipper::addLine(const Outline& line, std::vector<Path>& out) const {
    if (line.points.empty() || misses(line.cap)) return;
    ClipPen pen(*this, out, nullptr);
    draw(line, pen);
}

void Clipper::addRing(const Outline& ring, Cut& out) const {
    if (ring.points.empty()) return;
    // A ring that lies wholly outside matters only when it goes around the disc.
    if (ring.cap.radius < kPi / 2 && misses(ring.cap)) return;
    Path path;
    ClipPen pen(*this, out.lines, &path);
    draw(ring, pen);
    const int around = timesAround(path);
    if (around != 0 && around != ring.turn) out.inverted = !out.inverted;
    out.rings.push_back(std::move(path));
}

Path Clipper::edge() const {
    Path path;
    for (double angle = 0; angle < 2 * kPi; angle += kPi / 90)
        path.push_back({rim_ * std::cos(angle), rim_ * std::sin(angle)});
    return path;
}

} // namespace gatewise::map
