#pragma once

#include "gt1/Commands.h"
#include "gt1/DataSet.h"
#include "import/Sources.h"

#include <string>
#include <vector>

namespace gatewise::importer {

struct ImportOptions {
    std::string name; // of the set; empty: the timetable's month, "June 2002", or "World"
    bool everyFlight = false;
    bool skipUnknown = false;
};

struct ImportCounts {
    std::size_t airports = 0, airlines = 0;
    std::size_t own = 0, flown = 0, made = 0;         // flights
    std::size_t pairs = 0, byNavaids = 0, direct = 0; // airport pairs; those without a way along airways
    std::size_t regions = 0;                          // added to those that all sets share
    std::vector<std::size_t> grown;                   // shared records added: aircraft, vor, ndb, fixes, jets
};

struct Imported {
    std::string name;
    std::vector<gt1::NamedTable> tables; // of the set
    std::vector<gt1::NamedTable> shared; // aircraft, vor, ndb, fixes, jets: those given, grown at their end
    gt1::World world;                    // the same shared tables as records
    std::string sources;                 // SOURCES.txt of the set, UTF-8
    std::string report;                  // for a person, UTF-8
    std::vector<SourceInfo> files;
    ImportCounts counts;
    std::vector<std::string> faults; // why there is nothing; empty when all is well
    bool cancelled = false;
};

} // namespace gatewise::importer
