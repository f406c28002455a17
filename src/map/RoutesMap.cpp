#include "map/RoutesMap.h"

#include "map/Globe.h"
#include "platform/Numbers.h"
#include "platform/Text.h"
#include "schedule/Lookups.h"

#include <algorithm>
#include <map>
#include <numeric>

namespace gatewise::map {

namespace {

constexpr double kThinnest = 1, kThickest = 4; // pixels
constexpr double kMostFlights = 24;            // a day, drawn as the thickest

bool counts(const FlightRecord& flight, const RoutesFilter& filter) {
    if (!get_day(flight.DaysMask, filter.day)) return false;
    const auto code = trimmed(filter.airline);
    return code.empty() || code == trimmed(kAnyAirlineCode) || flight.AirlineCode.trimmed() == code;
}

/// Takes the departure that comes first from `now` on, the day's first behind its last.
void takeNext(Destination& destination, int time, int now) {
    const auto wait = [&](int t) { return t >= now ? t - now : t - now + 2400; };
    if (destination.next < 0 || wait(time) < wait(destination.next)) destination.next = time;
}

/// "1 flight", "12 flights".
std::string counted(int count, const char* one) {
    return std::to_string(count) + one + (count == 1 ? "" : "s");
}

MapSpot airportSpot(const AirportRecord& airport) {
    return {static_cast<double>(airport.Latitude), static_cast<double>(airport.Longitude)};
}

/// Null for the blank element behind the last airport too.
const AirportRecord* known(const Tables& tables, int index) {
    if (index < 0 || index >= tables.AirportCount()) return nullptr;
    const AirportRecord& airport = tables.airport(index);
    const MapSpot at = airportSpot(airport);
    return onEarth(at.latitude, at.longitude) ? &airport : nullptr;
}

} // namespace

std::vector<Destination> destinationsOf(const Tables& tables, const std::vector<FlightRecord>& flights,
                                        const RoutesFilter& filter) {
    std::map<int, Destination> found;
    for (const FlightRecord& flight : flights) {
        const AirportRecord* airport = known(tables, flight.DestIndex);
        if (airport == nullptr) continue;
        Destination& destination = found[flight.DestIndex];
        if (destination.iata.empty()) {
            destination.airport = flight.DestIndex;
            destination.iata = airport->Iata.str();
            destination.city =
                airport->City.trimmed().empty() ? airport->Name.trimmed() : airport->City.trimmed();
            destination.miles = flight.Miles;
        }
        if (!counts(flight, filter)) continue;
        ++destination.flights;
        takeNext(destination, flight.DepartureTime, filter.now);
    }
    std::vector<Destination> out;
    out.reserve(found.size());
    for (auto& [index, destination] : found) out.push_back(std::move(destination));
    std::stable_sort(out.begin(), out.end(),
                     [](const Destination& a, const Destination& b) { return lessFolded(a.city, b.city); });
    return out;
}

std::string nextText(const Destination& destination) {
    if (destination.next < 0) return {};
    return formatInteger("00", destination.next / 100) + ":" + formatInteger("00", destination.next % 100);
}

std::string destinationText(const Destination& destination) {
    std::string text = destination.city + ", " + std::to_string(destination.miles) + " miles, " +
                       counted(destination.flights, " flight") + " today";
    if (destination.next >= 0) text += ", next " + nextText(destination);
    return text;
}

MapScene routesScene(const Tables& tables, int from, const std::vector<Destination>& destinations,
                     std::shared_ptr<const Land> land) {
    MapScene scene;
    scene.land = std::move(land);
    const AirportRecord* origin = known(tables, from);
    if (origin == nullptr) return scene;
    const MapSpot start = airportSpot(*origin);
    int flights = 0;
    std::vector<std::size_t> order(destinations.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::stable_sort(order.begin(), order.end(), [&](std::size_t a, std::size_t b) {
        return destinations[a].flights > destinations[b].flights;
    });
    scene.places.push_back({start, Tone::Airport, std::string(origin->Icao.trimmed()), "", -1});
    for (const std::size_t i : order) {
        const Destination& destination = destinations[i];
        const AirportRecord& airport = tables.airport(destination.airport);
        const double share = std::min(destination.flights / kMostFlights, 1.0);
        const bool flown = destination.flights > 0;
        const std::string words = destinationText(destination);
        scene.routes.push_back({{start, airportSpot(airport)},
                                flown ? Tone::Flight : Tone::Other,
                                flown ? kThinnest + (kThickest - kThinnest) * share : kThinnest,
                                words,
                                static_cast<int>(i),
                                {}});
        scene.places.push_back({airportSpot(airport), flown ? Tone::Fix : Tone::Other,
                                std::string(airport.Icao.trimmed()), words, static_cast<int>(i)});
        flights += destination.flights;
    }
    // The thick ones lie above.
    std::reverse(scene.routes.begin(), scene.routes.end());
    scene.summary = "Routes of " + std::string(origin->Icao.trimmed()) + ": " +
                    counted(static_cast<int>(destinations.size()), " destination") + ", " +
                    counted(flights, " flight") + " today";
    return scene;
}

} // namespace gatewise::map
