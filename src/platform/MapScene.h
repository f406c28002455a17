#pragma once

#include "platform/Drawing.h"

#include <memory>
#include <string>
#include <vector>

// What a map shows, apart from how much of it is seen and on which sheet. Positions are degrees, north and
// east positive.

namespace gatewise {

namespace map {
struct Land;
}

struct MapSpot {
    double latitude = 0;
    double longitude = 0;
    friend bool operator==(const MapSpot&, const MapSpot&) = default;
};

/// A point with a name.
struct MapPlace {
    MapSpot at;
    Tone tone = Tone::Fix;
    std::string name;  // beside its mark, where there is room; the places named first get it first
    std::string words; // said under the pointer
    int id = -1;       // what a click on it picks; -1: nothing
    friend bool operator==(const MapPlace&, const MapPlace&) = default;
};

/// Great circles from point to point.
struct MapRoute {
    std::vector<MapSpot> points;
    Tone tone = Tone::Route;
    double width = 0; // pixels; 0: as its tone has it
    std::string words;
    int id = -1;
    std::vector<std::string> names; // of the legs, along them; empty: none
    friend bool operator==(const MapRoute&, const MapRoute&) = default;
};

/// A runway from end to end.
struct MapStrip {
    MapSpot from, to;
    std::string name;
    friend bool operator==(const MapStrip&, const MapStrip&) = default;
};

struct MapScene {
    std::vector<MapPlace> places;
    std::vector<MapRoute> routes;
    std::vector<MapStrip> strips;
    std::string summary;                   // the same in words, for a screen reader
    std::shared_ptr<const map::Land> land; // below it all; may be missing
    friend bool operator==(const MapScene&, const MapScene&) = default;
};

/// What is seen of a map: the point in the middle of the sheet, and the degrees of arc that the sheet's
/// shorter side would have at the middle's scale.
struct MapSight {
    MapSpot middle;
    double span = 60;
    friend bool operator==(const MapSight&, const MapSight&) = default;
};

} // namespace gatewise
