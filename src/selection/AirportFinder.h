#pragma once

#include "schedule/Records.h"

#include <cstdint>
#include <string_view>
#include <vector>

namespace gatewise {

/// The search for airports by a piece of text, without regard to case. It keeps the text fields of all
/// airports folded to one case; made once for each load of the table.
class AirportFinder {
public:
    AirportFinder() = default;
    explicit AirportFinder(const std::vector<AirportRecord>& airports);

    /// Airports in table order whose Iata, Icao, Name or City, blanks of the padding included, holds the
    /// text. An empty text is found nowhere.
    [[nodiscard]] std::vector<std::int32_t> find(std::string_view text) const;

    /// Whether find would name this airport; false outside the table.
    [[nodiscard]] bool matches(std::int32_t airport, std::string_view text) const;

private:
    struct Fields {
        FixedText<3> Iata;
        FixedText<4> Icao;
        FixedText<35> Name;
        FixedText<33> City;

        [[nodiscard]] bool hold(std::string_view folded) const;
    };
    std::vector<Fields> airports_;
};

} // namespace gatewise
