#pragma once

#include "platform/MapScene.h"
#include "schedule/Records.h"

#include <string>
#include <string_view>
#include <vector>

namespace gatewise::map {

/// What the departures of an airport are counted by.
struct RoutesFilter {
    int day = 0;              // bit of a weekday as in FlightRecord::DaysMask; 0: any
    std::string_view airline; // code; kAnyAirlineCode or empty: all
    int now = 0;              // HHMM of the board's clock
};

/// An airport that the departures lead to.
struct Destination {
    int airport = 0; // index in the airport table
    std::string iata;
    std::string city; // or the airport's name where there is none
    int miles = 0;    // as the schedule has them
    int flights = 0;  // on that day, of that airline
    int next = -1;    // HHMM of the next one, the day's first behind the last; -1 without any
};

/// In order of their cities.
std::vector<Destination> destinationsOf(const Tables& tables, const std::vector<FlightRecord>& flights,
                                        const RoutesFilter& filter);

/// "09:15": when the next one goes; empty without any.
std::string nextText(const Destination& destination);

/// "Chicago, 525 miles, 12 flights today, next 09:15"
std::string destinationText(const Destination& destination);

/// All routes of an airport, the thicker the more flights; those without a flight stand back. Ids are places
/// in `destinations`.
MapScene routesScene(const Tables& tables, int from, const std::vector<Destination>& destinations,
                     std::shared_ptr<const Land> land);

} // namespace gatewise::map
