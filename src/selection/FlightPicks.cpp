#include "selection/FlightPicks.h"

#include "platform/Text.h"
#include "schedule/FlightTexts.h"
#include "schedule/Lookups.h"

namespace gatewise {

namespace {

constexpr std::string_view kKeyStem = "Flight";

} // namespace

FlightPickList pickFlights(const std::vector<FlightRecord>& flights, std::string_view destinationIata,
                           int day) {
    FlightPickList list;
    list.FlightPicks.fill(kFreeSlot);
    std::size_t k = 0;
    for (std::size_t i = 0; i < flights.size(); ++i) {
        const auto& flight = flights[i];
        if (flight.DestinationIata.view() != destinationIata || !get_day(flight.DaysMask, day)) continue;
        if (k == list.FlightPicks.size()) {
            list.overflow = true;
            return list;
        }
        list.FlightPicks[k++] = static_cast<std::int32_t>(i);
    }
    list.FlightPickCount = static_cast<std::int32_t>(k) - 1;
    return list;
}

FlightLine flightLine(const Tables& tables, const std::vector<FlightRecord>& flights, std::int32_t position) {
    FlightLine line;
    line.key = std::string(kKeyStem) + std::to_string(position);
    if (position < 0 || static_cast<std::size_t>(position) >= flights.size()) return line;
    const auto& flight = flights[static_cast<std::size_t>(position)];
    line.text = " " + std::string(flight.AirlineCode.trimmed()) + " " + std::to_string(flight.FlightNumber);
    line.equipment = find_aircraft(tables, flight.AircraftCode.view());
    line.departs = fourDigits(flight.DepartureTime);
    line.arrives = fourDigits(flight.ArrivalTime);
    return line;
}

std::optional<std::int32_t> positionOfKey(std::string_view key) {
    if (!key.starts_with(kKeyStem)) return std::nullopt;
    return parseInteger(key.substr(kKeyStem.size()));
}

FlightInfoTexts flightInfoTexts(const Tables& tables, const FlightRecord& flight) {
    const auto text = [](std::string_view part) { return std::string(trimmed(part)); };
    FlightInfoTexts info;
    info.origin = " " + text(find_origin_name(tables, flight.OriginIata.trimmed()));
    info.arrival = " " + text(find_arrival_name(tables, flight.DestinationIata.trimmed()));
    info.flight_info = text(find_airline(tables, flight.AirlineCode.trimmed())) + " " +
                       std::to_string(flight.FlightNumber) + ", " +
                       text(find_aircraft(tables, flight.AircraftCode.trimmed()));
    info.dept_time = fourDigits(flight.DepartureTime);
    info.arr_time = fourDigits(flight.ArrivalTime);
    info.miles = std::to_string(flight.Miles);
    info.Class = classText(flight.ClassCode.view());
    info.meal = get_meal(flight.MealMask);
    for (std::size_t day = 0; day < info.days.size(); ++day)
        info.days[day] = get_day(flight.DaysMask, 1 << day) ? "Y" : " ";
    return info;
}

} // namespace gatewise
