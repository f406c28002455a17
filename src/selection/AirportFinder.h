#pragma once

#include "schedule/Records.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace gatewise {

/// The four text fields of all airports in one block, letters folded to one case, so that a search is one
/// pass over memory. Made once for each load of the table.
class AirportFinder {
public:
    AirportFinder() : AirportFinder(std::vector<AirportRecord>()) {}
    explicit AirportFinder(const std::vector<AirportRecord>& airports);

    /// Airports in table order whose Iata, Icao, Name or City, blanks of the padding included, holds the text
    /// without regard to case. An empty text is found nowhere.
    [[nodiscard]] std::vector<std::int32_t> find(std::string_view text) const;

    /// Whether find would name this airport; false outside the table.
    [[nodiscard]] bool matches(std::int32_t airport, std::string_view text) const;

private:
    std::string folded_;
    std::size_t airports_ = 0;
    std::array<std::uint32_t, 256> frequency_{}; // of each character in the block
};

} // namespace gatewise
