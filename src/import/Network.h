#pragma once

#include "import/Findings.h"
#include "import/Job.h"
#include "import/Sources.h"
#include "import/Sphere.h"

#include <cstdint>
#include <string>
#include <vector>

namespace gatewise::importer {

/// A VOR, NDB or fix of the sources.
struct Point {
    char kind = 'I'; // V, N, I
    std::string ident;
    std::string name;      // Windows-1252, blank for a fix
    std::string frequency; // "112.30", "341.0"
    std::string region;    // blank where the form has none
    Place place;
    bool high = false; // a high airway leads here
};

/// A piece of airways between two points.
struct Leg {
    std::uint32_t from = 0, to = 0; // in points
    bool high = false;
    bool forward = true, backward = true; // which ways it may be flown
    std::vector<std::string> airways;     // at most 5 characters each
};

struct Network {
    std::vector<Point> points; // ordered by kind, ident and place, whatever the order of the sources
    std::vector<Leg> legs;
};

/// Joins fixes, navaids and airways: by ident and place (0.6 nm) in the form without regions, by ident,
/// region and kind in the one with. Radio aids of the other table join where the navaids lack them.
Network makeNetwork(const RawTables& raw, Findings& findings, const Job& job);

} // namespace gatewise::importer
