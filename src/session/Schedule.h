#pragma once

#include "schedule/Records.h"
#include "selection/AirportFinder.h"

#include <vector>

namespace gatewise {

/// The data set in use and the flights of it that are loaded.
struct Schedule {
    Tables tables;
    AirportFinder airportFinder;                // over tables.airports
    std::vector<FlightRecord> DepartureFlights; // of the dispatch airport
    std::vector<FlightRecord> BoardFlights;     // of the board airport
    [[nodiscard]] int DepartureFlightCount() const { return static_cast<int>(DepartureFlights.size()) - 1; }
    [[nodiscard]] int BoardFlightCount() const { return static_cast<int>(BoardFlights.size()) - 1; }
};

} // namespace gatewise
