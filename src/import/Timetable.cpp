#include "import/Timetable.h"

#include "import/Flown.h"
#include "import/Made.h"
#include "import/Own.h"

#include <algorithm>
#include <array>

namespace gatewise::importer {

namespace {

/// Leaves out the flights whose airports the tables do not have, and names the others by their IATA codes.
void nameAirports(std::vector<Flight>& flights, const Airports& airports, Findings& findings) {
    std::erase_if(flights, [&](Flight& flight) {
        const int from = airports.find(flight.origin);
        const int to = airports.find(flight.destination);
        if (from >= 0 && to >= 0 && from != to) {
            flight.origin = airports.all[static_cast<std::size_t>(from)].iata;
            flight.destination = airports.all[static_cast<std::size_t>(to)].iata;
            return false;
        }
        findings.other("flights as flown with an unknown airport, left out",
                       flight.airline + " " + std::to_string(flight.number) + " " + flight.origin + " - " +
                           flight.destination);
        return true;
    });
}

/// Class and meals, which the source does not tell, by the minutes that the flight is scheduled for.
void serveAll(std::vector<Flight>& flights, const Airports& airports, const AircraftTypes& types) {
    for (Flight& flight : flights) {
        const Place& from = airports.all[static_cast<std::size_t>(airports.find(flight.origin))].place;
        const Place& to = airports.all[static_cast<std::size_t>(airports.find(flight.destination))].place;
        const AircraftType& type = types.nearest(flight.type);
        serve(flight, type, blockMinutes(type, distance(from, to)));
    }
}

} // namespace

std::vector<Flight> makeTimetable(RawTables& raw, const Airports& airports, const AircraftTypes& types,
                                  bool everyFlight, Findings& findings, const Job& job) {
    std::vector<Flight> all = ownFlights(raw.ownFlights.rows, airports, types, findings);
    std::vector<Flight> flown = flownFlights(raw, types, everyFlight, findings, job);
    if (job.cancelled()) return all;
    nameAirports(flown, airports, findings);
    serveAll(flown, airports, types);
    giveWay(flown, all);
    all.insert(all.end(), flown.begin(), flown.end());
    const Zones zones;
    const auto made =
        madeFlights(raw.routes.rows, airports, types, zones, monthOfTimetable(raw), all, findings, job);
    all.insert(all.end(), made.begin(), made.end());
    std::sort(all.begin(), all.end(), [](const Flight& a, const Flight& b) { return a.key() < b.key(); });
    return all;
}

CycleMonth monthOfTimetable(const RawTables& raw) {
    const CycleMonth flown = monthOf(raw.onTime);
    if (flown.year > 0) return flown;
    const CycleMonth cycle = cycleMonth(raw.airways.edition.head);
    return cycle.year > 0 ? cycle : CycleMonth{2002, 6};
}

std::string defaultName(const RawTables& raw) {
    constexpr std::array<std::string_view, 12> months{"January",   "February", "March",    "April",
                                                      "May",       "June",     "July",     "August",
                                                      "September", "October",  "November", "December"};
    const CycleMonth flown = monthOf(raw.onTime);
    if (flown.year == 0) return "World";
    return std::string(months[static_cast<std::size_t>(flown.month - 1)]) + " " + std::to_string(flown.year);
}

} // namespace gatewise::importer
