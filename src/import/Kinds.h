#pragma once

#include <span>
#include <string>
#include <string_view>

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

/// What a person calls the kind: "airports (OpenFlights)".
std::string_view nameOf(Kind kind);

struct Recognised {
    Kind kind = Kind::Unknown;
    int version = 0;   // of a navigation form
    std::string fault; // why a file that looks like a known kind is not one; empty otherwise
};

/// How many lines recognise() wants to see.
inline constexpr std::size_t kLinesToRecognise = 12;

/// The kind of a table by its first lines, never by its name.
Recognised recognise(std::span<const std::string> lines);

} // namespace gatewise::importer
