#pragma once

#include "gt1/DataSet.h"
#include "import/Sphere.h"

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

} // namespace gatewise::importer
