#include "work/PassTexts.h"

#include "platform/Text.h"
#include "schedule/FlightTexts.h"
#include "schedule/Lookups.h"

namespace gatewise {

PassTexts passTexts(const FlightRecord& flight, const Tables& tables, const Settings& settings,
                    const DateTime& now) {
    PassTexts texts;
    texts.name = upperCase(settings.Last) + "/" + upperCase(settings.First);
    texts.destination = find_arrival_name(tables, flight.DestinationIata.view());
    texts.origin = find_origin_name(tables, flight.OriginIata.view());
    texts.flight = std::string(flight.AirlineCode.trimmed()) + std::to_string(flight.FlightNumber);
    texts.aircraft = find_aircraft(tables, flight.AircraftCode.view());
    texts.airline = find_airline(tables, flight.AirlineCode.view());
    texts.departs = passTime(flight.DepartureTime);
    texts.arrives = passTime(flight.ArrivalTime);
    texts.meal = get_meal(flight.MealMask);
    if (const auto text = passClass(flight.ClassCode.view())) texts.flightClass = std::string(*text);
    texts.date = passDate(now);
    texts.seat = seatText(now.second);
    return texts;
}

} // namespace gatewise
