#pragma once

#include "schedule/Records.h"

#include <string_view>

// Records for tests, in one line each.

namespace gatewise::test {

inline AirportRecord airport(std::string_view iata, std::string_view icao, std::string_view name,
                             std::string_view city, float latitude = 0, float longitude = 0) {
    AirportRecord record;
    record.Iata = iata;
    record.Icao = icao;
    record.Name = name;
    record.City = city;
    record.Latitude = latitude;
    record.Longitude = longitude;
    return record;
}

inline AirlineRecord airline(std::string_view code, std::string_view name, std::string_view callsign = {}) {
    AirlineRecord record;
    record.Code = code;
    record.Name = name;
    record.Callsign = callsign;
    return record;
}

inline AircraftRecord aircraft(std::string_view code, std::string_view name, std::string_view company = {},
                               std::string_view type = {}) {
    AircraftRecord record;
    record.Code = code;
    record.Name = name;
    record.PfCompany = company;
    record.PfAircraft = type;
    return record;
}

inline FlightRecord flight(std::string_view airline, int number, int departs, int arrives, int origin = 0,
                           int destination = 1) {
    FlightRecord record;
    record.AirlineCode = airline;
    record.FlightNumber = static_cast<std::int16_t>(number);
    record.DepartureTime = static_cast<std::int16_t>(departs);
    record.ArrivalTime = static_cast<std::int16_t>(arrives);
    record.OriginIndex = static_cast<std::int16_t>(origin);
    record.DestIndex = static_cast<std::int16_t>(destination);
    record.DaysMask = 127;
    return record;
}

template<class Record> Bytes bytesOf(const std::vector<Record>& records) {
    Bytes bytes;
    for (const auto& record : records) appendRecord(bytes, record);
    return bytes;
}

} // namespace gatewise::test
