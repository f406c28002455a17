#pragma once

#include "gt1/DataSet.h"
#include "import/Network.h"

#include <string>
#include <unordered_map>
#include <unordered_set>
#include <vector>

namespace gatewise::importer {

/// The tables that all data sets share, growing at their end: what stands keeps its number, and what is there
/// already is not added again. A record is the same when kind, ident, frequency and place (0.001 degrees)
/// are. A region that is known stays; one that a standing record lacked comes to the end of the regions.
class SharedTables {
public:
    explicit SharedTables(gt1::World world);

    /// The number of a point's own record, from 0, in the table of its kind.
    std::size_t record(const Point& point);
    /// The number of a point among the fixes on high airways, from 0.
    std::size_t jet(const Point& point);
    void aircraft(const AircraftRecord& record);

    [[nodiscard]] const gt1::World& world() const { return world_; }
    /// How many records came to each table: aircraft, vor, ndb, fixes, jets.
    [[nodiscard]] std::vector<std::size_t> grown() const;
    [[nodiscard]] std::size_t grownRegions() const {
        return world_.regions.entries().size() - regionsBefore_;
    }

private:
    using Places = std::unordered_multimap<std::string, std::size_t>;

    template<class Records, class Same>
    static long long find(const Places& places, const Records& records, const Point& point, Same same);
    std::size_t numberOf(const Point& point);
    std::size_t aid(std::vector<NavaidRecord>& records, Places& places, const Point& point);

    gt1::World world_;
    std::vector<std::size_t> before_;
    std::size_t regionsBefore_ = 0;
    Places vor_, ndb_, fixes_, jets_;
    std::unordered_set<std::string> fixKeys_, jetKeys_;
};

} // namespace gatewise::importer
