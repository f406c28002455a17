#pragma once

#include "plan/NavRecords.h"
#include "plan/Regions.h"
#include "schedule/Records.h"

#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

// A data set in memory, between the plain tables and the .gt1 files. Counts and positions inside the airport
// records are only filled when the files are made.

namespace gatewise::gt1 {

/// An airport's block of APT.gt1.
struct Facilities {
    std::vector<RunwayRecord> runways;
    RadioRecord radios;
};

struct DataSet {
    std::vector<AirportRecord> airports;
    std::vector<Facilities> facilities; // one for each airport
    std::vector<AirlineRecord> airlines;
    std::vector<FlightRecord> flights;          // grouped by departure airport, in the order of the airports
    std::vector<std::vector<RouteEntry>> plans; // plan 1 is the first
};

/// What all data sets share.
struct World {
    std::vector<AircraftRecord> aircraft;
    std::vector<NavaidRecord> vor;
    std::vector<NavaidRecord> ndb;
    std::vector<FixRecord> fixes;
    std::vector<JetRecord> jets;
    Regions regions; // of the vor, ndb, fixes and jets, as far as they are known
};

/// Names by which a plan refers to the records of one navigation file: the record's own key, or key.2, key.3
/// and so on for further records of that key, in the order of the file.
class FixNames {
public:
    void add(std::string_view key);

    [[nodiscard]] int find(const std::string& name) const; // from 0, -1 when there is none
    [[nodiscard]] const std::string* name(long long record) const;

private:
    std::vector<std::string> names_;
    std::unordered_map<std::string, int> records_;
    std::unordered_map<std::string, int> again_; // last number given to a key
};

/// The four files that a route entry can point into, by its kind.
struct WorldNames {
    explicit WorldNames(const World& world);

    FixNames vor, ndb, fixes, jets;

    /// Nothing for a letter that is no kind.
    [[nodiscard]] const FixNames* ofKind(char kind) const;
    /// The number that the files give to their first record of this kind.
    static int firstRecord(char kind) { return kind == 'H' ? 1 : 0; }
    /// The table that holds the kind's records.
    static std::string_view fileOf(char kind);
};

} // namespace gatewise::gt1
