#pragma once

#include "schedule/Records.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <unordered_map>

namespace gatewise {

/// The airports of a table by what log books call them. Of equal ones the first of the table counts.
class AirportNames {
public:
    /// The table must live as long as this.
    explicit AirportNames(const Tables& tables);

    /// By the ICAO code, else by the IATA code; without any code by the airport's whole name. Letters are
    /// compared without case, blanks around them do not count. nullptr when the table has no such airport.
    [[nodiscard]] const AirportRecord* find(std::string_view code, std::string_view name);

private:
    using ByCode = std::unordered_map<std::uint32_t, const AirportRecord*>;
    void addNames();

    const std::vector<AirportRecord>& airports_;
    ByCode byIcao_, byIata_;
    // Few log books ask for a name; they are entered at the first question.
    std::unordered_map<std::string, const AirportRecord*> byName_;
};

} // namespace gatewise
