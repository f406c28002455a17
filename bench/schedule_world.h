#pragma once

#include "platform/Files.h"
#include "schedule/Readers.h"

#include <filesystem>
#include <random>
#include <stdexcept>
#include <string>
#include <unistd.h>
#include <vector>

// Invented schedules of any size, the same in every run.

namespace gatewise::bench {

inline std::string placeName(std::mt19937& random) {
    static const std::vector<std::string> heads = {
        "Ash",  "Brook", "Cald", "Dun",  "East", "Fair", "Glen", "Hart",  "Inver", "Kings", "Lang",
        "Mill", "Nor",   "Oak",  "Port", "Quar", "Ross", "Stan", "Thorn", "Up",    "Vale",  "West"};
    static const std::vector<std::string> tails = {"bury",  "dale", "field", "ford",  "ham",
                                                   "haven", "ley",  "mouth", "stead", "ton",
                                                   "ville", "wick", "wood",  "worth"};
    std::string name = heads[random() % heads.size()] + tails[random() % tails.size()];
    return random() % 4 == 0 ? "Saint " + name : name;
}

/// Tables of so many airports, the blank one behind them, and 60 airlines.
inline Tables world(std::size_t airports) {
    static const std::vector<std::string> kinds = {"International", "Municipal", "Regional", "County",
                                                   "Field"};
    std::mt19937 random(5);
    const auto letter = [&] { return static_cast<char>('A' + random() % 26); };
    const auto between = [&](float low, float high) {
        return std::uniform_real_distribution<float>(low, high)(random);
    };
    Tables tables;
    tables.airports.assign(airports + 1, AirportRecord());
    for (std::size_t i = 0; i < airports; ++i) {
        auto& airport = tables.airports[i];
        airport.Iata = std::string{letter(), letter(), letter()};
        airport.Icao = std::string{letter(), letter(), letter(), letter()};
        airport.City = placeName(random);
        airport.Name = placeName(random) + " " + kinds[random() % kinds.size()];
        airport.Latitude = between(-75, 75);
        airport.Longitude = between(-180, 180);
    }
    for (int i = 0; i < 60; ++i) {
        AirlineRecord airline;
        airline.Code = std::string{static_cast<char>('A' + i / 26), static_cast<char>('A' + i % 26)};
        airline.Name = placeName(random) + " Airways";
        tables.airlines.push_back(airline);
    }
    indexTables(tables);
    return tables;
}

/// Flights of airport 0 to the first 300 airports over the whole day, five minutes apart at the least.
inline std::vector<FlightRecord> flights(const Tables& tables, std::size_t count) {
    std::mt19937 random(6);
    const auto time = [&] {
        const auto minute = random() % 288 * 5;
        return static_cast<std::int16_t>(minute / 60 * 100 + minute % 60);
    };
    std::vector<FlightRecord> list(count);
    for (auto& flight : list) {
        flight.OriginIndex = 0;
        flight.DestIndex = static_cast<std::int16_t>(1 + random() % 299);
        flight.OriginIata = tables.airport(flight.OriginIndex).Iata;
        flight.DestinationIata = tables.airport(flight.DestIndex).Iata;
        flight.DepartureTime = time();
        flight.ArrivalTime = time();
        flight.DaysMask = static_cast<std::uint8_t>(random() % 8 == 0 ? 31 : 127);
        flight.AirlineCode = tables.airlines[random() % tables.airlines.size()].Code;
        flight.FlightNumber = static_cast<std::int16_t>(1 + random() % 2999);
        flight.AircraftCode = "733";
    }
    return list;
}

/// A folder for the files of one run.
class Folder {
public:
    Folder() {
        std::string pattern = (std::filesystem::temp_directory_path() / "gatewise-bench-XXXXXX").string();
        if (::mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no folder for the benchmark");
        path_ = pattern;
    }
    ~Folder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }
    Folder(const Folder&) = delete;
    Folder& operator=(const Folder&) = delete;

    [[nodiscard]] std::string path(const std::string& name) const { return path_ + "/" + name; }

    /// Writes the first `count` records as a file; returns its path.
    template<class Record>
    [[nodiscard]] std::string file(const std::string& name, const std::vector<Record>& records,
                                   std::size_t count) const {
        Bytes bytes;
        for (std::size_t i = 0; i < count; ++i) appendRecord(bytes, records[i]);
        if (files::replace(path(name), bytes)) throw std::runtime_error("no file for the benchmark");
        return path(name);
    }

private:
    std::string path_;
};

} // namespace gatewise::bench
