#pragma once

#include "import/AircraftTypes.h"

#include <cstdint>
#include <string>
#include <tuple>

namespace gatewise::importer {

enum class Origin { Own, Flown, Made };

/// A flight of the timetable that an import makes.
struct Flight {
    std::string airline;
    int number = 0;
    std::string origin, destination; // IATA
    int departure = 0, arrival = 0;  // minutes of the day, local at either end
    std::uint8_t days = 127;         // 1 Monday to 64 Sunday
    std::string type;                // code of a type of our table
    char classCode = 'F';
    int meals = 0; // mask
    std::string reserved;
    int miles = -1; // nautical, along the route; -1 until it is known
    Origin from = Origin::Made;

    [[nodiscard]] auto key() const {
        return std::tie(origin, departure, destination, airline, number, arrival, days, type);
    }
};

/// Minutes from gate to gate over some nautical miles.
int blockMinutes(const AircraftType& type, double miles);

/// Class of service and meals by type, time and length.
void serve(Flight& flight, const AircraftType& type, int minutes);

} // namespace gatewise::importer
