#pragma once

#include "career/AirportNames.h"
#include "logbook/LogRecord.h"

namespace gatewise {

/// What log books of other programs call airports, aircraft and airlines, in the words of our tables.
class LogNames {
public:
    /// The tables must live as long as this.
    explicit LogNames(const Tables& tables);

    /// The ICAO code for the IATA code or the name of an airport, the airport's name where the entry has
    /// none, names for the codes of aircraft (also the ICAO type) and airlines. What the tables do not have
    /// stays.
    void complete(LogRecord& entry);

private:
    void completeAirport(FixedText<4>& icao, FixedText<35>& name);
    [[nodiscard]] std::string aircraftName(std::string_view text) const;

    const Tables& tables_;
    AirportNames airports_;
};

} // namespace gatewise
