#pragma once

#include <string>

namespace gatewise::programs {

enum class Fix { Airport, Vor, Ndb, Intersection, User };

struct RoutePoint {
    Fix fix = Fix::User;
    bool computed = false; // top or step: always a user point, on no airway
    bool high = false;     // of the high-altitude network
    std::string ident;     // 1 to 8 upper-case letters and digits, the same for no two places of one kind
    std::string name;      // a text of the program in one line, may be empty
    std::string region;    // two upper-case letters or digits; empty: unknown, an airport or a user point
    std::string airway;    // the one that leads here, upper-case letters and digits; empty: direct
    double latitude = 0;   // degrees, north positive, -90 to 90
    double longitude = 0;  // degrees, east positive, -180 to 180
    int altitude = 0;      // feet, of an airport its elevation
};

} // namespace gatewise::programs
