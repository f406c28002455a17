#pragma once

#include "gt1/DataSet.h"
#include "import/Sources.h"
#include "import/Sphere.h"

#include <set>
#include <string>
#include <unordered_map>
#include <vector>

namespace gatewise::importer {

struct Airport {
    AirportRecord record;
    gt1::Facilities facilities;
    Place place;
    std::string iata, icao, zone;
};

/// The airports of a set, ordered by their IATA codes.
struct Airports {
    std::vector<Airport> all;
    std::unordered_map<std::string, std::size_t> byCode; // IATA and ICAO

    /// -1 for a code that no airport has.
    [[nodiscard]] int find(const std::string& code) const {
        const auto found = byCode.find(code);
        return found == byCode.end() ? -1 : static_cast<int>(found->second);
    }
    void index();
};

/// Every airport with both codes, from both tables of airports (the one with a header wins), with its runways
/// and radios. Airports that no flight uses stay only where they have a runway: keepUsed() sees to that.
Airports makeAirports(const RawTables& raw, Findings& findings);

/// Leaves out the airports that have neither a runway nor a flight.
void keepUsed(Airports& airports, const std::set<std::string>& usedIata, Findings& findings);

} // namespace gatewise::importer
