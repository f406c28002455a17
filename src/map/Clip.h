#pragma once

#include "map/LandData.h"
#include "map/Projection.h"

#include <vector>

// Lines and areas of the sphere, cut to the disc of it that a sheet can show and laid flat.

namespace gatewise::map {

using Path = std::vector<PlanePoint>;

/// Areas, filled by the even-odd rule, and the outlines that run inside the disc.
struct Cut {
    std::vector<Path> rings;
    std::vector<Path> lines;
    bool inverted = false; // what the rings enclose is the rest of the disc: its edge belongs to them
};

class Clipper {
public:
    /// `reach`: radius of the disc around the projection's middle in radians, below pi; `grain`: points
    /// nearer than this to the one before (in the plane) may be left out.
    Clipper(const Projection& projection, double reach, double grain = 0);

    /// Adds the parts of a line that lie inside.
    void addLine(const std::vector<Vector>& line, std::vector<Path>& out) const;
    void addLine(const Outline& line, std::vector<Path>& out) const;
    /// Adds a ring as an area and its outline.
    void addRing(const Outline& ring, Cut& out) const;
    /// The edge of the disc.
    [[nodiscard]] Path edge() const;

    [[nodiscard]] bool holds(const Vector& v) const { return dot(v, projection_.middle()) >= cosReach_; }
    [[nodiscard]] const Projection& projection() const { return projection_; }

private:
    friend class ClipPen;
    [[nodiscard]] bool misses(const Cap& cap) const;
    template<class Pen> void draw(const Outline& outline, Pen& pen) const;
    Projection projection_;
    double reach_, cosReach_, rim_, grain_;
};

} // namespace gatewise::map
