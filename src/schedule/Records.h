#pragma once

#include "platform/Binary.h"
#include "schedule/CodeIndex.h"

#include <cstdint>
#include <vector>

// The schedule's records as they stand in the .gt1 files of a data set. Each field list is the layout on
// disk: the order and the widths of the fields are the format. Positions that a record holds count bytes
// from 1.

namespace gatewise {

/// index.gt1
struct AirportRecord {
    FixedText<3> Iata;
    FixedText<4> Icao;
    FixedText<35> Name;
    FixedText<33> City;
    std::int32_t DepartureOffset = 0; // in routes.gt1
    std::int16_t DepartureCount = 0;
    std::int32_t Elevation = 0;     // feet
    float Latitude = 0;             // degrees, north positive
    float Longitude = 0;            // degrees, east positive
    std::int32_t ArrivalOffset = 0; // in arrivals.gt1
    std::int16_t ArrivalCount = 0;
    std::int32_t RunwayCount = 0;
    std::int32_t RunwayOffset = 0; // in APT.gt1

    static constexpr void fields(auto& r, auto&& f) {
        f("Iata", r.Iata), f("Icao", r.Icao), f("Name", r.Name), f("City", r.City);
        f("DepartureOffset", r.DepartureOffset), f("DepartureCount", r.DepartureCount);
        f("Elevation", r.Elevation), f("Latitude", r.Latitude), f("Longitude", r.Longitude);
        f("ArrivalOffset", r.ArrivalOffset), f("ArrivalCount", r.ArrivalCount);
        f("RunwayCount", r.RunwayCount), f("RunwayOffset", r.RunwayOffset);
    }
};
static_assert(recordSize<AirportRecord>() == 107);

/// airline.gt1
struct AirlineRecord {
    FixedText<3> Code;
    FixedText<39> Name;
    FixedText<24> Callsign;

    static constexpr void fields(auto& r, auto&& f) {
        f("Code", r.Code), f("Name", r.Name), f("Callsign", r.Callsign);
    }
};
static_assert(recordSize<AirlineRecord>() == 66);

/// aircraft.gt1
struct AircraftRecord {
    FixedText<3> Code;
    FixedText<50> Name;
    std::int16_t ClimbRate = 0;      // feet a minute
    std::int16_t DescentRate = 0;    // feet a minute, of either sign
    std::int32_t CruiseAltitude = 0; // feet
    std::int16_t CruiseSpeedTAS = 0; // knots
    FixedText<27> PfCompany;
    FixedText<29> PfAircraft;

    static constexpr void fields(auto& r, auto&& f) {
        f("Code", r.Code), f("Name", r.Name), f("ClimbRate", r.ClimbRate), f("DescentRate", r.DescentRate);
        f("CruiseAltitude", r.CruiseAltitude), f("CruiseSpeedTAS", r.CruiseSpeedTAS);
        f("PfCompany", r.PfCompany), f("PfAircraft", r.PfAircraft);
    }
};
static_assert(recordSize<AircraftRecord>() == 119);

/// routes.gt1
struct FlightRecord {
    FixedText<3> OriginIata;
    std::int16_t DepartureTime = 0; // HHMM, no date, no zone
    FixedText<3> DestinationIata;
    std::int16_t ArrivalTime = 0; // HHMM
    std::int16_t Miles = 0;
    std::uint8_t DaysMask = 0; // 1 Monday to 64 Sunday
    FixedText<3> AirlineCode;
    std::int16_t FlightNumber = 0;
    FixedText<3> AircraftCode;
    FixedText<1> ClassCode;    // A to G
    std::uint8_t MealMask = 0; // 1 breakfast, 2 lunch, 4 dinner, 8 snack, 16 beverage
    FixedText<1> Reserved1;
    std::int16_t OriginIndex = 0; // in the airport table
    std::int16_t DestIndex = 0;
    std::int32_t PlanNumber = 0; // in Plans.gt1, from 1

    static constexpr void fields(auto& r, auto&& f) {
        f("OriginIata", r.OriginIata), f("DepartureTime", r.DepartureTime);
        f("DestinationIata", r.DestinationIata), f("ArrivalTime", r.ArrivalTime), f("Miles", r.Miles);
        f("DaysMask", r.DaysMask), f("AirlineCode", r.AirlineCode), f("FlightNumber", r.FlightNumber);
        f("AircraftCode", r.AircraftCode), f("ClassCode", r.ClassCode), f("MealMask", r.MealMask);
        f("Reserved1", r.Reserved1), f("OriginIndex", r.OriginIndex), f("DestIndex", r.DestIndex);
        f("PlanNumber", r.PlanNumber);
    }
};
static_assert(recordSize<FlightRecord>() == 32);

/// The read-only tables of a data set, whole in memory. `airports` has one blank element more than the file
/// has records, so that its last index is AirportCount; the others end at their last record.
struct Tables {
    std::vector<AirportRecord> airports = std::vector<AirportRecord>(1);
    std::vector<AirlineRecord> airlines;
    std::vector<AircraftRecord> aircraft;

    /// Kept by the loaders, used by the look-ups; a table that was changed by hand is scanned instead.
    CodeIndex airportsByIata; // the first counts
    CodeIndex airlinesByCode; // by trimmed code, the last counts
    CodeIndex aircraftByCode; // the last counts

    /// Upper indices, as all loops of the program name them.
    [[nodiscard]] int AirportCount() const { return static_cast<int>(airports.size()) - 1; }
    [[nodiscard]] int AirlineLast() const { return static_cast<int>(airlines.size()) - 1; }
    [[nodiscard]] int AircraftLast() const { return static_cast<int>(aircraft.size()) - 1; }

    /// Whether an index from a file or a setting lies in the table, its blank extra element counted.
    [[nodiscard]] bool hasAirport(int index) const { return index >= 0 && index <= AirportCount(); }
    /// The airport at an index from a file or a setting; the blank extra element when it lies outside the
    /// table.
    [[nodiscard]] const AirportRecord& airport(int index) const {
        return hasAirport(index) ? airports[static_cast<std::size_t>(index)] : airports.back();
    }
};

} // namespace gatewise
