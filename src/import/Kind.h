#pragma once

#include <string>

namespace gatewise::importer {

/// The tables that an import understands.
enum class Kind {
    Unknown,
    WorldAirports, // the four tables of airports, airlines, planes and routes without a header line
    WorldAirlines,
    WorldPlanes,
    WorldRoutes,
    Airports, // tables with a header line
    Runways,
    Radios,
    RadioAids,
    Fixes, // navigation forms: a line "I" or "A", a line with the version
    NavAids,
    Airways,
    OnTime,
    Tails,
    Registry,
    RegistryModels,
    Carriers,
    OwnFlights,
};

struct Recognised {
    Kind kind = Kind::Unknown;
    int version = 0;   // of a navigation form
    std::string fault; // why a file that looks like a known kind is not one; empty otherwise
};

} // namespace gatewise::importer
