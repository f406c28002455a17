#pragma once

#include "import/NavigationForm.h"

#include <cstdint>
#include <string>
#include <tuple>
#include <vector>

// The rows of the sources as they were read: texts in UTF-8, degrees north and east positive, feet. What is
// missing in a source is empty, or what the comment says.

namespace gatewise::importer {

/// Which of two files of the same kind is the newer one: by the cycle or date that it names, then by its
/// size, at last by its bytes; never by its place among the sources.
struct Edition {
    long long said = 0; // from the file's own words, 0 when it has none
    long long rows = 0;
    std::uint64_t digest = 0;
    std::string file;
    NavigationHead head; // of a navigation form

    [[nodiscard]] bool newerThan(const Edition& other) const {
        return std::tie(said, head.build, rows, digest) >
               std::tie(other.said, other.head.build, other.rows, other.digest);
    }
};

template<class Row> struct Table {
    std::vector<Row> rows;
    Edition edition;
    std::string error; // why the source could not be read to its end
};

struct AirportIn {
    std::string iata, icao, name, city;
    double latitude = 0, longitude = 0;
    int elevation = 0; // feet
    std::string zone;  // "Europe/London"
    bool closed = false;
    bool land = true; // false for heliports and balloonports
};

struct AirlineIn {
    long long id = 0;
    std::string iata, icao, name, callsign;
    bool active = false;
};

struct PlaneIn {
    std::string iata, icao, name;
};

struct RouteIn {
    std::string airline;
    long long airlineId = -1;
    std::string origin, destination; // IATA or ICAO
    bool codeshare = false;
    int stops = 0;
    std::string equipment; // codes with blanks between
};

struct RunwayEndIn {
    std::string ident;
    double latitude = 0, longitude = 0;
    bool placed = false; // latitude and longitude are known
    double heading = -1; // degrees true, -1 unknown
};
struct RunwayIn {
    std::string airport; // ident
    double length = 0;   // feet
    RunwayEndIn low, high;
};

struct RadioIn {
    std::string airport; // ident
    std::string type;
    double megahertz = 0;
};

/// Of a navigation form, or of a table with a header.
struct NavAidIn {
    int row = 0; // 2 NDB, 3 VOR, 4 localizer of an ILS, as navigation forms number them
    double latitude = 0, longitude = 0;
    int frequency = 0;  // kHz of an NDB, else 10 kHz
    double bearing = 0; // of a VOR: variation, east positive; of a localizer: true course
    bool bearingKnown = false;
    std::string ident, region, airport, runway, name;
};

struct FixIn {
    double latitude = 0, longitude = 0;
    std::string ident, region;
    bool enroute = true;
};

struct AirwayEndIn {
    std::string ident, region;
    double latitude = 0, longitude = 0; // of the form without regions
    int type = 0;                       // 11 fix, 2 NDB, 3 VOR, in the form with regions
};
struct AirwayIn {
    AirwayEndIn from, to;
    char direction = 'N'; // N both ways, F forward, B backward
    bool high = false;
    std::string names; // with "-" between
};

struct CarrierIn {
    std::string code, name;
};

struct TailIn {
    std::string tail; // with its "N"
    std::string maker, model;
};
struct RegistryIn {
    std::string tail;
    std::string modelCode;
};
struct RegistryModelIn {
    std::string code, maker, model;
};

struct OwnFlightIn {
    std::string origin, destination, airline, aircraft, classCode, reserved;
    int departure = 0, arrival = 0; // HHMM
    int number = 0;
    int miles = -1; // unknown
    std::uint8_t days = 127;
    int meals = -1; // unknown
};

} // namespace gatewise::importer
