#include "import/Made.h"

#include "import/Numbering.h"

#include <algorithm>
#include <array>
#include <map>
#include <set>

namespace gatewise::importer {

namespace {

/// How much of a timetable is made where the flights as flown are.
constexpr double kFlownShare = 0.6;

/// A number that looks drawn, but follows from the text.
std::uint64_t drawn(std::string_view text) {
    std::uint64_t hash = 14695981039346656037ULL;
    for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211ULL;
    hash ^= hash >> 31U;
    hash *= 0x9E3779B97F4A7C15ULL;
    return hash ^ (hash >> 29U);
}

/// A row of the route table that is to be flown.
struct Service {
    std::string airline;
    std::size_t origin = 0, destination = 0;
    std::vector<const AircraftType*> types;
    double miles = 0; // nautical
};

using Directed = std::tuple<std::string, std::size_t, std::size_t>; // airline, from, to

class FlightMaker {
public:
    FlightMaker(const Airports& airports, const AircraftTypes& types, const Zones& zones, CycleMonth month,
                Findings& findings)
        : airports_(airports), types_(types), findings_(findings) {
        for (const Airport& airport : airports.all)
            ahead_.push_back(zones.minutesAhead(airport.zone, month.year, month.month));
    }

    void take(const std::vector<RouteIn>& routes, const std::vector<Flight>& real, const Job& job) {
        Walk walk(job, 2 * routes.size(), kFlownShare, 0.8);
        for (const Flight& flight : real)
            flown_.insert(directed(flight.airline, flight.origin, flight.destination));
        std::set<std::pair<std::size_t, std::size_t>> owned;
        for (const RouteIn& row : routes)
            if (walk.goesOn() && !row.codeshare && usable(row, false)) owned.insert(ends(row));
        std::map<Directed, const RouteIn*> chosen;
        for (const RouteIn& row : routes) {
            if (!walk.goesOn()) return;
            if (!usable(row, true)) continue;
            const auto [from, to] = ends(row);
            if (row.codeshare && owned.contains({from, to})) {
                findings_.other("routes flown under another airline's number, left out", words(row));
                continue;
            }
            if (flown_.contains({row.airline, from, to})) continue;
            const RouteIn*& kept = chosen[{row.airline, from, to}];
            if (kept == nullptr || row.equipment < kept->equipment) kept = &row;
        }
        for (const auto& [key, row] : chosen) services_.push_back(serviceOf(*row));
    }

    std::vector<Flight> fly(Numbering& numbers, const Job& job) {
        std::map<std::tuple<std::string, double, std::size_t, std::size_t>, std::array<const Service*, 2>>
            pairs;
        for (const Service& s : services_) {
            const bool out = s.origin < s.destination;
            pairs[{s.airline, -s.miles, std::min(s.origin, s.destination), std::max(s.origin, s.destination)}]
                 [out ? 0 : 1] = &s; // long ways first: they have an airline's low numbers
        }
        std::vector<Flight> out;
        Walk walk(job, pairs.size(), 0.8);
        for (const auto& [key, both] : pairs)
            if (walk.goesOn()) flyPair(both, numbers, out);
        return out;
    }

private:
    static std::string words(const RouteIn& row) {
        return row.airline + " " + row.origin + " - " + row.destination;
    }

    Directed directed(const std::string& airline, const std::string& from, const std::string& to) const {
        return {airline, static_cast<std::size_t>(airports_.find(from)),
                static_cast<std::size_t>(airports_.find(to))};
    }

    std::pair<std::size_t, std::size_t> ends(const RouteIn& row) const {
        return {static_cast<std::size_t>(airports_.find(row.origin)),
                static_cast<std::size_t>(airports_.find(row.destination))};
    }

    bool usable(const RouteIn& row, bool tell) {
        const bool known = airports_.find(row.origin) >= 0 && airports_.find(row.destination) >= 0;
        const bool apart = row.origin != row.destination && (!known || ends(row).first != ends(row).second);
        if (known && apart && row.stops == 0) return true;
        if (tell)
            findings_.other(!known  ? "routes with an unknown airport, left out"
                            : apart ? "routes with a stop on the way, left out"
                                    : "routes from an airport to itself, left out",
                            words(row));
        return false;
    }

    Service serviceOf(const RouteIn& row) {
        Service out;
        out.airline = row.airline;
        std::tie(out.origin, out.destination) = ends(row);
        out.miles = distance(airports_.all[out.origin].place, airports_.all[out.destination].place);
        Cells codes;
        codes.blanks(row.equipment);
        for (std::size_t i = 0; i < codes.size(); ++i) {
            const AircraftType& type = types_.nearest(codes[i]);
            if (type.code != codes[i] && replaced_.insert(std::string(codes[i])).second)
                findings_.other("aircraft types replaced by their nearest relative",
                                std::string(codes[i]) + " by " + type.code);
            out.types.push_back(&type);
        }
        if (out.types.empty()) out.types.push_back(&types_.usual(static_cast<int>(out.miles)));
        return out;
    }

    std::string pairKey(const Service& s) const {
        const std::string& a = airports_.all[s.origin].iata;
        const std::string& b = airports_.all[s.destination].iata;
        return s.airline + std::min(a, b) + std::max(a, b);
    }

    /// Flights a day each way.
    int frequency(const Service& s) const {
        const std::uint64_t luck = drawn(pairKey(s));
        int out = s.miles < 250 ? 3 : s.miles < 1200 ? 2 : 1;
        if (s.types[0]->seats >= 200 && s.miles < 1200) --out;
        if (luck % 4 == 0 && s.miles < 2500) ++out;
        if (luck % 7 == 1 && out > 1) --out;
        return out;
    }

    std::uint8_t daysOf(const Service& s) const {
        constexpr std::array<std::uint8_t, 4> some{85, 42, 43, 106}; // 1357, 246, 1246, 2467
        const std::uint64_t luck = drawn(pairKey(s) + "days");
        const bool daily = s.miles < 1500 || luck % 3 != 0;
        return daily ? std::uint8_t{127} : some[luck / 3 % some.size()];
    }

    /// Minutes by which the clock at the destination is ahead of that at the origin.
    int clocks(const Service& s) const { return ahead_[s.destination] - ahead_[s.origin]; }

    static int around(int minutes) { return (minutes % 1440 + 1440) % 1440; }

    /// Departures at which people are about at both ends, or at the one where that cannot be.
    std::vector<int> departures(const Service& s, int block) const {
        std::vector<int> both, here;
        for (int time = 360; time < 1380; time += 5) {
            const int arrival = around(time + block + clocks(s));
            here.push_back(time);
            if (arrival >= 300 && arrival < 1435) both.push_back(time);
        }
        return both.empty() ? here : both;
    }

    Flight flightOf(const Service& s, int index, int count) const {
        const AircraftType& type = *s.types[static_cast<std::size_t>(index) % s.types.size()];
        const int block = blockMinutes(type, s.miles);
        const std::vector<int> times = departures(s, block);
        const std::string& from = airports_.all[s.origin].iata;
        const double luck = 0.1 + 0.8 * static_cast<double>(drawn(pairKey(s) + from) % 1000) / 1000;
        const double place = (index + luck) / count * static_cast<double>(times.size());
        Flight out;
        out.airline = s.airline;
        out.origin = from;
        out.destination = airports_.all[s.destination].iata;
        out.departure = times[std::min(static_cast<std::size_t>(place), times.size() - 1)];
        out.arrival = around(out.departure + block + clocks(s));
        out.days = daysOf(s);
        out.type = type.code;
        serve(out, type, block);
        return out;
    }

    void flyPair(const std::array<const Service*, 2>& both, Numbering& numbers, std::vector<Flight>& out) {
        const Service& first = both[0] != nullptr ? *both[0] : *both[1];
        const int count = frequency(first);
        for (int i = 0; i < count; ++i)
            for (const Service* s : both) {
                if (s == nullptr) continue;
                Flight flight = flightOf(*s, i, count);
                flight.number = numbers.next(s->airline);
                if (flight.number > 0)
                    out.push_back(std::move(flight));
                else
                    findings_.other("flights beyond an airline's last number, left out", pairKey(*s));
            }
    }

    const Airports& airports_;
    const AircraftTypes& types_;
    Findings& findings_;
    std::vector<int> ahead_;
    std::set<Directed> flown_;
    std::set<std::string> replaced_;
    std::vector<Service> services_;
};

} // namespace

std::vector<Flight> madeFlights(const std::vector<RouteIn>& routes, const Airports& airports,
                                const AircraftTypes& types, const Zones& zones, CycleMonth month,
                                const std::vector<Flight>& real, Findings& findings, const Job& job) {
    Numbering numbers(real);
    FlightMaker maker(airports, types, zones, month, findings);
    maker.take(routes, real, job);
    return job.cancelled() ? std::vector<Flight>() : maker.fly(numbers, job);
}

} // namespace gatewise::importer
