#pragma once

#include "schedule/Records.h"

#include <string>
#include <string_view>
#include <vector>

// The .gt1 files of a data set. Every reader takes whole blocks in one read, checks each position and count
// against the file's real length, and leaves its target as it was when it fails.

namespace gatewise {

/// Folders below `AppDir` + "\Data\", each a data set, in the order of the file system, at most 999.
std::vector<std::string> dataSetFolders(std::string_view AppDir);

/// Loads one table and its index. A length that is no multiple of the record size gives a rounded number of
/// records, the last one filled as far as the file reaches and blank beyond. Airports get one blank element
/// more. False when the file cannot be read.
bool loadAirports(std::string_view path, Tables& tables);
bool loadAirlines(std::string_view path, Tables& tables);
bool loadAircraft(std::string_view path, Tables& tables);

/// Builds the indexes of tables that were not loaded from files.
void indexTables(Tables& tables);

/// The departures of an airport: `count` records of routes.gt1 from the byte position `offset`, counted from
/// 1. False when the count is below 1 or a record lies outside the file.
bool loadFlights(std::string_view routesPath, int offset, int count, std::vector<FlightRecord>& flights);

/// The arrivals of an airport: `count` positions in arrivals.gt1 from the byte position `offset`, counted
/// from 1, and the flight in routes.gt1 that each of them names. False as above, also for a position in the
/// list that lies outside routes.gt1.
bool loadArrivals(std::string_view arrivalsPath, std::string_view routesPath, int offset, int count,
                  std::vector<FlightRecord>& flights);

} // namespace gatewise
