#pragma once

#include "platform/Binary.h"

#include <cstdint>
#include <string_view>

// Distances, courses and positions on a sphere of exactly 60 nautical miles to the degree. Positions are
// decimal degrees, north and east positive; courses are degrees. An operation that has no result (a root of a
// negative number, a division by zero, a position that is no number) gives a value that is not a number.

namespace gatewise {

/// Distance from point 1 to point 2 in nautical miles. `lastCourse` becomes the course that leaves point 1,
/// between -180 and 180 or a little beyond: negative courses stay negative. Both are left to the caller to
/// check with std::isfinite; without a result `lastCourse` keeps its value.
float Distance(float lat1, float lon1, float lat2, float lon2, float& lastCourse);

/// Latitude reached from `lat1` after `offsetDistance` whole nautical miles along `course`.
double offsetLatitude(std::int32_t offsetDistance, double lat1, double course);

/// Longitude reached from `lat1`, `lon1` on the same way, above -180 and up to 180; `lat2` is the result of
/// offsetLatitude, not rounded to a 32-bit float in between.
float offsetLongitude(std::int32_t offsetDistance, double lat1, double lon1, double course, double lat2);

/// The simulator's table of magnetic variation. One read serves a whole plan.
class MagneticTable {
public:
    /// No table: every heading stays true.
    MagneticTable() = default;
    /// The table below the simulator's folder `FsPath`; without a file there, none.
    explicit MagneticTable(std::string_view FsPath);

    /// The true heading turned magnetic at a position, 0 up to but not including 360; the true heading as it
    /// is when the table has no value for the position.
    [[nodiscard]] float magneticHeading(float lat, float lon, float trueHeading) const;

private:
    Bytes file_; // from the file's first byte to the table's last
};

} // namespace gatewise
