#include "import/Own.h"

#include <algorithm>
#include <set>
#include <tuple>

namespace gatewise::importer {

namespace {

auto service(const Flight& f) {
    return std::tuple(f.airline, f.origin, f.destination);
}

int minutesOf(int hhmm) {
    return hhmm / 100 * 60 + hhmm % 100;
}

Flight flightOf(const OwnFlightIn& row, const Airport& from, const Airport& to, const AircraftTypes& types) {
    const double miles = distance(from.place, to.place);
    const AircraftType& type =
        row.aircraft.empty() ? types.usual(static_cast<int>(miles)) : types.nearest(row.aircraft);
    Flight out;
    out.from = Origin::Own;
    out.airline = row.airline;
    out.number = row.number;
    out.origin = from.iata;
    out.destination = to.iata;
    out.departure = minutesOf(row.departure);
    out.arrival = minutesOf(row.arrival);
    out.days = row.days;
    out.type = type.code;
    serve(out, type, blockMinutes(type, miles));
    if (!row.classCode.empty()) out.classCode = row.classCode[0];
    if (row.meals >= 0) out.meals = row.meals;
    out.reserved = row.reserved;
    out.miles = row.miles;
    return out;
}

} // namespace

std::vector<Flight> ownFlights(const std::vector<OwnFlightIn>& rows, const Airports& airports,
                               const AircraftTypes& types, Findings& findings) {
    std::vector<Flight> out;
    for (const OwnFlightIn& row : rows) {
        const int from = airports.find(row.origin);
        const int to = airports.find(row.destination);
        if (from < 0 || to < 0) {
            findings.other("own flights with an unknown airport, left out",
                           row.origin + " - " + row.destination);
            continue;
        }
        if (!row.aircraft.empty() && types.nearest(row.aircraft).code != row.aircraft)
            findings.other("aircraft types replaced by their nearest relative",
                           row.aircraft + " by " + types.nearest(row.aircraft).code);
        out.push_back(flightOf(row, airports.all[static_cast<std::size_t>(from)],
                               airports.all[static_cast<std::size_t>(to)], types));
    }
    std::sort(out.begin(), out.end(), [](const Flight& a, const Flight& b) { return a.key() < b.key(); });
    const auto same = [](const Flight& a, const Flight& b) { return a.key() == b.key(); };
    out.erase(std::unique(out.begin(), out.end(), same), out.end());
    return out;
}

void giveWay(std::vector<Flight>& flights, const std::vector<Flight>& winners) {
    std::set<std::tuple<std::string, std::string, std::string>> taken;
    for (const Flight& flight : winners) taken.insert(service(flight));
    std::erase_if(flights, [&](const Flight& flight) { return taken.contains(service(flight)); });
}

} // namespace gatewise::importer
