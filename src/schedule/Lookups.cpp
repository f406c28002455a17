#include "schedule/Lookups.h"

#include <algorithm>
#include <array>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace gatewise {

namespace {

const AirportRecord* airportOf(const Tables& tables, std::string_view iata) {
    const auto& airports = tables.airports;
    if (tables.airportsByIata.rows() == airports.size()) {
        const auto row = tables.airportsByIata.find(iata);
        return row ? &airports[*row] : nullptr;
    }
    const auto hit =
        std::find_if(airports.begin(), airports.end(), [&](const auto& a) { return a.Iata.view() == iata; });
    return hit == airports.end() ? nullptr : &*hit;
}

const AirlineRecord* airlineOf(const Tables& tables, std::string_view code) {
    const auto& airlines = tables.airlines;
    const std::string_view wanted = trimmed(code);
    if (wanted.size() > FixedText<3>::width) return nullptr;
    if (tables.airlinesByCode.rows() == airlines.size()) {
        const auto row = tables.airlinesByCode.find(FixedText<3>(wanted).view());
        return row ? &airlines[*row] : nullptr;
    }
    const auto hit = std::find_if(airlines.rbegin(), airlines.rend(),
                                  [&](const auto& a) { return a.Code.trimmed() == wanted; });
    return hit == airlines.rend() ? nullptr : &*hit;
}

const AircraftRecord* aircraftOf(const Tables& tables, std::string_view code) {
    const auto& aircraft = tables.aircraft;
    if (tables.aircraftByCode.rows() == aircraft.size()) {
        const auto row = tables.aircraftByCode.find(code);
        return row ? &aircraft[*row] : nullptr;
    }
    const auto hit = std::find_if(aircraft.rbegin(), aircraft.rend(),
                                  [&](const auto& a) { return a.Code.view() == code; });
    return hit == aircraft.rend() ? nullptr : &*hit;
}

bool isNamed(const AirlineRecord& airline, std::string_view name) {
    return airline.Name.trimmed() == trimmed(name);
}

} // namespace

std::string find_origin_name(const Tables& tables, std::string_view code) {
    const auto* airport = airportOf(tables, code);
    return airport != nullptr ? std::string(airport->City.trimmed()) : std::string();
}

std::string find_arrival_name(const Tables& tables, std::string_view code) {
    return find_origin_name(tables, code);
}

// Names are looked up once for each turn of the board, in a table of hundreds: a scan is all they need.
std::string find_airline_code(const Tables& tables, std::string_view name) {
    if (name == kAnyAirline) return std::string(name);
    const auto& airlines = tables.airlines;
    const auto hit = std::find_if(airlines.rbegin(), airlines.rend(),
                                  [&](const auto& airline) { return isNamed(airline, name); });
    return hit == airlines.rend() ? std::string() : hit->Code.str();
}

std::string firstAirlineCode(const Tables& tables, std::string_view name) {
    const auto& airlines = tables.airlines;
    const auto hit = std::find_if(airlines.begin(), airlines.end(),
                                  [&](const auto& airline) { return isNamed(airline, name); });
    return hit == airlines.end() ? std::string() : hit->Code.str();
}

std::string find_airline(const Tables& tables, std::string_view code) {
    const auto* airline = airlineOf(tables, code);
    return airline != nullptr ? std::string(airline->Name.trimmed()) : std::string();
}

std::string find_aircraft(const Tables& tables, std::string_view code) {
    const auto* aircraft = aircraftOf(tables, code);
    return aircraft != nullptr ? aircraft->Name.str() : std::string();
}

std::string find_pf_compnay(const Tables& tables, std::string_view code) {
    const auto* aircraft = aircraftOf(tables, code);
    return aircraft != nullptr ? aircraft->PfCompany.str() : std::string();
}

std::string find_pf_aircraft(const Tables& tables, std::string_view code) {
    const auto* aircraft = aircraftOf(tables, code);
    return aircraft != nullptr ? aircraft->PfAircraft.str() : std::string();
}

std::string find_pf_callsign(const Tables& tables, std::string_view code) {
    const auto* airline = airlineOf(tables, code);
    return airline != nullptr ? airline->Callsign.str() : std::string();
}

std::string get_meal(int mask) {
    static constexpr std::array<std::pair<int, std::string_view>, 5> kMeals = {
        {{1, "B "}, {2, "L "}, {4, "D "}, {8, "S "}, {16, "Bev "}}};
    std::string text;
    for (const auto& [bit, meal] : kMeals) {
        if ((mask & bit) != 0) text += meal;
    }
    return trimmed(text).empty() ? "None" : text;
}

bool get_day(int mask, int day) {
    return day == 0 || (mask & day) != 0;
}

std::vector<FixedText<3>> distinctAirlines(const std::vector<FlightRecord>& flights) {
    std::vector<FixedText<3>> codes;
    std::unordered_set<std::string_view> seen; // views into `flights`
    for (const auto& flight : flights) {
        if (seen.insert(flight.AirlineCode.view()).second) codes.push_back(flight.AirlineCode);
    }
    return codes;
}

} // namespace gatewise
