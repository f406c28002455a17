#pragma once

#include "logbook/LogRecord.h"
#include "map/Globe.h"
#include "schedule/Records.h"

#include <array>
#include <map>
#include <string>
#include <utility>
#include <vector>

// What a pilot has flown, counted from the log book alone. Where an airport lies and which code an aircraft
// has is found by their names in the tables.

namespace gatewise {

/// Entries that count; empty or 0: all.
struct CareerFilter {
    int year = 0;
    std::string aircraft; // names as in the log book, trimmed
    std::string airline;
};

/// Flights under one name.
struct CareerTally {
    std::string name;
    std::string code{}; // of an aircraft type that the table has
    int flights = 0;
    double hours = 0; // day and night
    double miles = 0; // of the flights between known airports
};

/// All flights between two airports, in either direction.
struct CareerRoute {
    std::string from, to; // ICAO codes in order of the alphabet
    map::Spot fromAt, toAt;
    int flights = 0;
    double miles = 0; // of one flight
};

struct CareerAirport {
    map::Spot at;
    int visits = 0; // departures and arrivals
};

struct Career {
    int flights = 0;
    double day = 0, night = 0, instrument = 0; // hours
    double miles = 0;                          // nautical, great circles
    int unknown = 0;                           // entries with an airport that the table does not have
    int unknownAircraft = 0;                   // entries with an aircraft that the table does not have
    double longestMiles = 0;
    std::string longest; // "KATL - RJTT"; empty without a known route
    int timed = 0;       // entries with any time at all; only they are late or on time
    int onTime = 0;      // arrivals no later than 15 minutes after the schedule
    double delay = 0;    // minutes late at arrival, the mean; early ones count below 0
    std::map<int, CareerTally> years;
    std::array<CareerTally, 12> months;                            // January first, of all years that count
    std::vector<CareerTally> aircraft, airlines, routes, airports; // the most flights first
    std::vector<CareerRoute> map;
    std::map<std::string, CareerAirport> places; // known airports by ICAO code

    [[nodiscard]] double total() const { return day + night; }
};

Career careerOf(const std::vector<LogRecord>& entries, const Tables& tables, const CareerFilter& filter = {});

/// What the filters can be set to, each list in order: the newest year first, names by the alphabet.
struct CareerChoices {
    std::vector<int> years;
    std::vector<std::string> aircraft, airlines;
};
CareerChoices careerChoices(const std::vector<LogRecord>& entries);

} // namespace gatewise
