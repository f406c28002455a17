#pragma once

#include "import/AircraftTypes.h"
#include "import/Job.h"
#include "import/Sources.h"

#include <map>
#include <vector>

namespace gatewise::importer {

/// Which type flew: by the tail numbers, and for unknown ones by what else the carrier flies that far.
class TailTypes {
public:
    /// Of no use when the job was cancelled.
    TailTypes(const RawTables& raw, const AircraftTypes& types, const Job& job);

    /// The most frequent type of the rows' tails, the first in the alphabet of those that are as frequent;
    /// for rows without a known tail the carrier's usual type at their distance.
    [[nodiscard]] const AircraftType& typeOf(const std::vector<OnTimeRow>& rows) const;

private:
    using Counts = std::map<std::string, int>;

    [[nodiscard]] const AircraftType* most(const Counts& counts) const;

    const AircraftTypes& types_;
    std::vector<const AircraftType*> ofTail_;
    std::map<std::pair<std::uint32_t, int>, Counts> usual_; // by carrier and band of distance
    std::map<std::uint32_t, Counts> ofCarrier_;
};

} // namespace gatewise::importer
