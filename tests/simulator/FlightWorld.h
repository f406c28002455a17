#pragma once

#include "simulator/FlightFile.h"
#include "support/Schedule.h"

#include <string>
#include <string_view>

// One flight from Atlanta to New York, with every kind of computed point on its way. Positions are fractions
// that 32-bit floats hold exactly.

namespace gatewise::test {

inline RunwayRecord runway(std::string_view id, float latitude, float longitude, float heading) {
    RunwayRecord out;
    out.runwayId = id;
    out.runwayLatitude = latitude;
    out.runwayLongitude = longitude;
    out.runwayHeading = heading;
    out.runwayCourse = heading + 5;
    return out;
}

inline StoredPosition stored(std::string_view identifier, std::string_view name, float latitude = 0,
                             float longitude = 0, float heading = 0) {
    StoredPosition out;
    out.identifier = identifier;
    out.name = name;
    out.latitude = latitude;
    out.longitude = longitude;
    out.heading = heading;
    return out;
}

inline PlanPoint point(std::string_view name, std::string_view type, float latitude, float longitude,
                       std::int32_t altitude, float heading, std::int32_t minutes) {
    PlanPoint out;
    out.pointId = name;
    out.pointName = name;
    out.pointType = type;
    out.pointLatitude = latitude;
    out.pointLongitude = longitude;
    out.pointAltitude = altitude;
    out.pointHeading = heading;
    out.pointMinutes = minutes;
    return out;
}

struct FlightWorld {
    Plan plan;
    FlightRecord flight;
    StoredPositions positions;
    NumberLocale numbers;
    StartPosition last;
    int PreFlight = 0;
    std::string fuel = "85";

    FlightWorld() {
        plan.departureAirport.Icao = "KATL";
        plan.departureAirport.Name = "Hartsfield Intl";
        plan.departureAirport.Latitude = 33.625F;
        plan.departureAirport.Longitude = -84.4375F;
        plan.departureAirport.Elevation = 1026;
        plan.departureAirport.runways = {runway("08L", 33.65625F, -84.4375F, 90.25F),
                                         runway("26R", 33.65625F, -84.40625F, 270.25F)};
        plan.destinationAirport.Icao = "KJFK";
        plan.destinationAirport.Elevation = 13;
        const PlanPoint points[] = {
            point("KATL", "  ", 33.625F, -84.4375F, 1026, 0, 0),
            point("ODF", "V ", 34.6875F, -83.296875F, 19500, 41.5F, 14),
            point("*TOC*", "TC", 35.0F, -82.75F, 31000, 52.75F, 21),
            point("SPA", "V ", 35.03125F, -81.921875F, 31000, 52.75F, 26),
            point("STEPC", "SU", 36.0F, -80.5F, 33000, 47.25F, 38),
            point("GVE", "V ", 38.015625F, -78.15625F, 33000, 47.25F, 61),
            point("STEPD", "SD", 39.0F, -76.5F, 29000, 55.5F, 74),
            point("*TOD*", "TD", 39.5F, -75.5F, 29000, 55.5F, 81),
            point("KJFK", "  ", 40.640625F, -73.78125F, 13, 61.125F, 103),
        };
        for (const PlanPoint& p : points) plan.at(plan.planLast++) = p;
        --plan.planLast;
        plan.speedSchedule = {240, 270, 285, 300, 285, 270, 240};
        flight.OriginIata = "ATL";
        flight.DestinationIata = "JFK";
        flight.AirlineCode = "V0";
        flight.FlightNumber = 123;
        flight.DepartureTime = 1250;
        positions[0] = stored("G1  ", "Gate B12", 33.640625F, -84.421875F, 181.5F);
        positions[2] = stored("P7  ", "Parking 7", -33.640625F, 84.421875F, 12.5F);
    }

    /// A send of the flight with a choice of posCOMBO.
    [[nodiscard]] SituationInput input(std::string_view choice, int pointIndex = 0) const {
        return {.plan = plan,
                .CurrentFlight = flight,
                .numbers = numbers,
                .stem = "Vantis Air Flight 123 ATL to JFK",
                .StartChoice = std::string(choice),
                .start = resolveStart(choice, plan, positions, pointIndex, last),
                .aircraft = "Boeing 737-400",
                .fuelPCT = fuel,
                .PreFlight = PreFlight,
                .pointIndex = pointIndex};
    }

    [[nodiscard]] std::vector<ProfileValue> keys(std::string_view choice, int pointIndex = 0) const {
        return situationKeys(input(choice, pointIndex));
    }
};

/// What the last write of a key leaves; "(none)" when it is not written.
inline std::string written(const std::vector<ProfileValue>& keys, std::string_view section,
                           std::string_view key) {
    std::string value = "(none)";
    for (const auto& entry : keys) {
        if (entry.section == section && entry.key == key) value = entry.value;
    }
    return value;
}

inline const std::string kDefaultStart = "- KATL Default -";
inline const std::string kInflight(kStartInflight);
inline const std::string kUnpositioned(kNoPosition);

} // namespace gatewise::test
