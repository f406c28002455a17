#pragma once

#include "gt1/DataSet.h"

#include <array>
#include <string_view>

namespace gatewise::gt1 {

/// The sample sets as the compiler makes them, compiled once and read back from their .gt1 files.
struct SampleSet {
    DataSet main;
    DataSet islands;
    World world;
};
const SampleSet& sampleSet();

/// Minutes from UTC of an airport of the sample: winter hours of 2009.
int minutesFromUtc(std::string_view iata);

/// Great-circle miles.
double miles(double fromLatitude, double fromLongitude, double toLatitude, double toLongitude);

/// Latitude and longitude of a route entry's record.
struct Position {
    double latitude = 0;
    double longitude = 0;
};
Position positionOf(const RouteEntry& entry, const World& world);

/// Miles along a flight's plan.
double routeMiles(const DataSet& set, const World& world, const FlightRecord& flight);

/// Minutes in the air and on the taxiways that a flight's two local times say, within a day.
int blockMinutes(const FlightRecord& flight);

} // namespace gatewise::gt1
