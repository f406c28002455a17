#pragma once

#include "import/OnTime.h"
#include "import/Raw.h"
#include "import/ReadRows.h"

#include <optional>
#include <string>
#include <vector>

// All sources of an import: each recognised, read, and of each kind the newest kept, or all of them joined.

namespace gatewise::importer {

/// What a person is told about a source.
struct SourceInfo {
    std::string file;
    Kind kind = Kind::Unknown;
    std::string fault; // why it cannot be used; empty for a good one and for one of no known form
    long long rows = 0;
    int firstDay = 0, lastDay = 0; // serials, of a timetable as flown
    std::string cycle;             // of a navigation form
    bool used = true;              // false when another one of its kind is newer
};

/// The first lines of a source, recognised; nothing else is read.
SourceInfo lookAt(const Source& source);

struct RawTables {
    std::vector<SourceInfo> files; // in the order of their names
    Table<AirportIn> worldAirports;
    Table<AirlineIn> airlines;
    Table<PlaneIn> planes;
    Table<RouteIn> routes;
    Table<AirportIn> airports;
    Table<RunwayIn> runways;
    Table<RadioIn> radios;
    Table<NavAidIn> radioAids;
    Table<FixIn> fixes;
    Table<NavAidIn> navAids;
    Table<AirwayIn> airways;
    OnTimeData onTime;
    Table<TailIn> tails;
    Table<RegistryIn> registry;
    Table<RegistryModelIn> registryModels;
    Table<CarrierIn> carriers;
    Table<OwnFlightIn> ownFlights; // all files of a pilot's own, joined
};

/// Puts sources into the order in which they are read and listed: that of their names.
void sortSources(std::vector<Source>& sources);

/// Reads all sources. The result does not depend on their order. `findings` gets the rows that are no good;
/// `faults` a line for each file that stops an import: broken, or of no known form unless `skipUnknown`.
RawTables readSources(std::vector<Source> sources, bool skipUnknown, Findings& findings,
                      std::vector<std::string>& faults, const Job& job);

} // namespace gatewise::importer
