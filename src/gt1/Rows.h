#pragma once

#include "plan/NavRecords.h"
#include "schedule/Records.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

// The rows of the plain tables. Each row type lists its columns once; the reader of cells, the writer of
// cells and the header line all follow from that list. A visitor gets, for each column, its name, the field
// and what may stand there:
//
//     code     a text without blanks, of `least` to all characters of its field
//     text     any text that fits
//     whole    a whole number from `low` to `high`
//     real     a number from `low` to `high`, kept as a 32-bit float
//     time     a time of day as four digits
//     bits     names of bits, written one after the other
//     letter   one of the letters given
//     word     a text of any length
//     region   two capital letters or digits, or nothing; the column may be missing, and is where no row has
//     one

namespace gatewise::gt1 {

struct Bit {
    std::uint8_t value;
    std::string_view name;
};

/// How the bits of a byte are written; the last ones of either table have no meaning and no name of their
/// own.
struct BitNames {
    std::array<Bit, 8> bits;
    std::string_view between;
    std::string_view expected;
    std::uint8_t known; // bits that may be set
    bool needed;        // at least one of them
};

inline constexpr BitNames dayNames{
    {{{1, "1"}, {2, "2"}, {4, "3"}, {8, "4"}, {16, "5"}, {32, "6"}, {64, "7"}, {128, "8"}}},
    "",
    "days from 1, Monday, to 7, Sunday, each once",
    127,
    true};
inline constexpr BitNames mealNames{
    {{{1, "B"}, {2, "L"}, {4, "D"}, {8, "S"}, {16, "Bev"}, {32, "32"}, {64, "64"}, {128, "128"}}},
    " ",
    "meals of B L D S Bev, each once, with a blank between",
    31,
    false};

struct AirportRow {
    static constexpr std::string_view file = "airports.csv";
    AirportRecord record;

    static void columns(auto& r, auto&& c) {
        c.code("iata", r.record.Iata, 3);
        c.code("icao", r.record.Icao, 1);
        c.text("name", r.record.Name);
        c.text("city", r.record.City);
        c.whole("elevation_ft", r.record.Elevation, -2000, 30000);
        c.real("latitude", r.record.Latitude, -90, 90);
        c.real("longitude", r.record.Longitude, -180, 180);
    }
};

struct RunwayRow {
    static constexpr std::string_view file = "runways.csv";
    FixedText<3> airport;
    RunwayRecord record;

    static void columns(auto& r, auto&& c) {
        c.code("airport", r.airport, 3);
        c.code("runway", r.record.runwayId, 1);
        c.real("latitude", r.record.runwayLatitude, -90, 90);
        c.real("longitude", r.record.runwayLongitude, -180, 180);
        c.real("heading_true", r.record.runwayHeading, 0, 360);
        c.real("heading_magnetic", r.record.runwayCourse, 0, 360);
        c.text("ils", r.record.ilsId);
        c.text("ils_frequency", r.record.ilsFrequency);
    }
};

struct RadioRow {
    static constexpr std::string_view file = "radios.csv";
    FixedText<3> airport;
    RadioRecord record;

    static void columns(auto& r, auto&& c) {
        c.code("airport", r.airport, 3);
        c.text("approach", r.record.approachFreq);
        c.text("delivery", r.record.deliveryFreq);
        c.text("departure", r.record.departureFreq);
        c.text("ground", r.record.groundFreq);
        c.text("radio5", r.record.radioFreq5);
        c.text("tower", r.record.towerFreq);
        c.text("radio7", r.record.radioFreq7);
    }
};

struct AirlineRow {
    static constexpr std::string_view file = "airlines.csv";
    AirlineRecord record;

    static void columns(auto& r, auto&& c) {
        c.code("code", r.record.Code, 1);
        c.text("name", r.record.Name);
        c.text("callsign", r.record.Callsign);
    }
};

struct AircraftRow {
    static constexpr std::string_view file = "aircraft.csv";
    AircraftRecord record;

    static void columns(auto& r, auto&& c) {
        c.code("code", r.record.Code, 1);
        c.text("name", r.record.Name);
        c.whole("climb_fpm", r.record.ClimbRate, 0, 32767);
        c.whole("descent_fpm", r.record.DescentRate, -32768, 32767);
        c.whole("cruise_altitude_ft", r.record.CruiseAltitude, 0, 100000);
        c.whole("cruise_speed_kt", r.record.CruiseSpeedTAS, 0, 32767);
        c.text("pf_company", r.record.PfCompany);
        c.text("pf_aircraft", r.record.PfAircraft);
    }
};

struct FlightRow {
    static constexpr std::string_view file = "flights.csv";
    FlightRecord record;

    static void columns(auto& r, auto&& c) {
        c.code("origin", r.record.OriginIata, 3);
        c.time("departure", r.record.DepartureTime);
        c.code("destination", r.record.DestinationIata, 3);
        c.time("arrival", r.record.ArrivalTime);
        c.whole("miles", r.record.Miles, 0, 32767);
        c.bits("days", r.record.DaysMask, dayNames);
        c.code("airline", r.record.AirlineCode, 1);
        c.whole("number", r.record.FlightNumber, 0, 9999);
        c.code("aircraft", r.record.AircraftCode, 1);
        c.letter("class", r.record.ClassCode, "ABCDEFG");
        c.bits("meals", r.record.MealMask, mealNames);
        c.text("reserved", r.record.Reserved1);
        c.whole("plan", r.record.PlanNumber, 1, 2147483647);
    }
};

/// vor.csv and ndb.csv have the same columns.
struct NavaidRow {
    NavaidRecord record;
    FixedText<2> region;

    static void columns(auto& r, auto&& c) {
        c.code("ident", r.record.navaidId, 1);
        c.text("name", r.record.navaidName);
        c.real("latitude", r.record.latitude, -90, 90);
        c.real("longitude", r.record.longitude, -180, 180);
        c.text("frequency", r.record.frequency);
        c.region("region", r.region);
    }
};
struct VorRow : NavaidRow {
    static constexpr std::string_view file = "vor.csv";
};
struct NdbRow : NavaidRow {
    static constexpr std::string_view file = "ndb.csv";
};

struct FixRow {
    static constexpr std::string_view file = "fixes.csv";
    FixRecord record;
    FixedText<2> region;

    static void columns(auto& r, auto&& c) {
        c.code("name", r.record.fixName, 1);
        c.code("key", r.record.fixId, 1);
        c.real("latitude", r.record.latitude, -90, 90);
        c.real("longitude", r.record.longitude, -180, 180);
        c.region("region", r.region);
    }
};

struct JetRow {
    static constexpr std::string_view file = "jets.csv";
    JetRecord record;
    FixedText<2> region;

    static void columns(auto& r, auto&& c) {
        c.code("key", r.record.jetId, 1);
        c.code("name", r.record.jetName, 1);
        c.text("description", r.record.jetDescription);
        c.real("latitude", r.record.latitude, -90, 90);
        c.real("longitude", r.record.longitude, -180, 180);
        c.letter("kind", r.record.jetKind, "VNI");
        c.text("frequency", r.record.frequency);
        c.region("region", r.region);
    }
};

struct PlanRow {
    static constexpr std::string_view file = "plans.csv";
    std::int32_t plan = 0; // from 1
    FixedText<3> origin;   // of the flights that use the plan, blank when there is not one such pair
    FixedText<3> destination;
    std::int32_t sequence = 0; // of the point, from 1; 0 for a plan without points
    FixedText<1> kind;
    std::string fix; // which record of that kind's table
    FixedText<5> airway;

    static void columns(auto& r, auto&& c) {
        c.whole("plan", r.plan, 1, 2147483647);
        c.text("origin", r.origin);
        c.text("destination", r.destination);
        c.whole("sequence", r.sequence, 0, 2147483647);
        c.text("kind", r.kind); // checked together with the fix
        c.word("fix", r.fix);
        c.text("airway", r.airway);
    }
};

} // namespace gatewise::gt1
