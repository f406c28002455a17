#include "career/Career.h"

#include "career/AirportNames.h"
#include "platform/Machine.h"
#include "platform/Text.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <optional>
#include <set>
#include <unordered_map>

namespace gatewise {

namespace {

constexpr int kDayMinutes = 24 * 60;
constexpr int kOnTime = 15; // minutes

int minutesOf(int hhmm) {
    return hhmm / 100 * 60 + hhmm % 100;
}

/// Minutes late at arrival; of a day's turn the nearer side counts.
int minutesLate(const LogRecord& entry) {
    const int late = minutesOf(entry.actualArrival) - minutesOf(entry.scheduledArrival);
    return late - kDayMinutes * static_cast<int>(std::lround(static_cast<double>(late) / kDayMinutes));
}

/// Hours out of a file; what is no number counts nothing.
double hoursOf(float value) {
    return std::isfinite(value) ? static_cast<double>(value) : 0;
}

bool isTimed(const LogRecord& entry) {
    return entry.scheduledDeparture != 0 || entry.scheduledArrival != 0 || entry.actualDeparture != 0 ||
           entry.actualArrival != 0;
}

/// One end of a flight.
struct End {
    std::string name; // ICAO code where the table has the airport, else what the log book calls it
    std::optional<map::Spot> at;
};

End endOf(AirportNames& airports, std::string_view code, std::string_view name) {
    const AirportRecord* found = airports.find(code, name);
    const auto written = trimmed(code).empty() ? trimmed(name) : trimmed(code);
    if (found == nullptr || !std::isfinite(found->Latitude) || !std::isfinite(found->Longitude))
        return {std::string(written), std::nullopt};
    const auto icao = found->Icao.trimmed();
    return {std::string(icao.empty() ? written : icao),
            map::Spot{static_cast<double>(found->Latitude), static_cast<double>(found->Longitude)}};
}

struct Counted {
    const LogRecord& entry;
    double hours;
    double miles; // 0 when an airport is unknown
};

void count(CareerTally& tally, const Counted& flight) {
    ++tally.flights;
    tally.hours += flight.hours;
    tally.miles += flight.miles;
}

using Tallies = std::unordered_map<std::string, CareerTally>;

void count(Tallies& tallies, const std::string& name, const Counted& flight) {
    if (!name.empty()) count(tallies[name], flight);
}

/// The most flights first, equal ones by name.
std::vector<CareerTally> ranked(Tallies&& tallies) {
    std::vector<CareerTally> out;
    for (auto& [name, tally] : tallies) {
        tally.name = name;
        out.push_back(std::move(tally));
    }
    std::sort(out.begin(), out.end(), [](const CareerTally& a, const CareerTally& b) {
        return a.flights != b.flights ? a.flights > b.flights : a.name < b.name;
    });
    return out;
}

bool counts(const LogRecord& entry, const std::optional<DateTime>& day, const CareerFilter& filter) {
    if (filter.year != 0 && (!day || day->year != filter.year)) return false;
    if (!filter.aircraft.empty() && entry.aircraft.trimmed() != filter.aircraft) return false;
    return filter.airline.empty() || entry.airline.trimmed() == filter.airline;
}

/// Codes of aircraft by their whole names; of equal names the first of the table counts.
std::unordered_map<std::string, std::string> aircraftCodes(const Tables& tables) {
    std::unordered_map<std::string, std::string> codes;
    for (const auto& aircraft : tables.aircraft)
        codes.emplace(aircraft.Name.trimmed(), aircraft.Code.trimmed());
    return codes;
}

/// Counts one entry after the other.
class Counter {
public:
    explicit Counter(const Tables& tables) : airports_(tables), codes_(aircraftCodes(tables)) {}

    void add(const LogRecord& entry, const std::optional<DateTime>& day) {
        const End from = endOf(airports_, entry.departureIcao.view(), entry.departureName.view());
        const End to = endOf(airports_, entry.arrivalIcao.view(), entry.arrivalName.view());
        const Counted flight{entry, hoursOf(entry.dayHours) + hoursOf(entry.nightHours), milesOf(from, to)};
        addSums(flight);
        addAirports(flight, from, to);
        if (day) {
            count(out_.years[day->year], flight);
            count(out_.months[static_cast<std::size_t>(day->month - 1)], flight);
        }
        const std::string aircraft(entry.aircraft.trimmed());
        if (!codes_.contains(aircraft)) ++out_.unknownAircraft;
        count(aircraft_, aircraft, flight);
        count(airlines_, std::string(entry.airline.trimmed()), flight);
    }

    Career finish() {
        if (out_.timed > 0) out_.delay = static_cast<double>(late_) / out_.timed;
        out_.aircraft = ranked(std::move(aircraft_));
        for (CareerTally& tally : out_.aircraft) {
            if (const auto code = codes_.find(tally.name); code != codes_.end()) tally.code = code->second;
        }
        out_.airlines = ranked(std::move(airlines_));
        out_.airports = ranked(std::move(visited_));
        out_.routes = ranked(std::move(routes_));
        for (const auto& [pair, route] : map_) out_.map.push_back(route);
        return std::move(out_);
    }

private:
    void addSums(const Counted& flight) {
        ++out_.flights;
        out_.day += hoursOf(flight.entry.dayHours);
        out_.night += hoursOf(flight.entry.nightHours);
        out_.instrument += hoursOf(flight.entry.instrumentHours);
        out_.miles += flight.miles;
        if (!isTimed(flight.entry)) return;
        const int late = minutesLate(flight.entry);
        late_ += late;
        ++out_.timed;
        if (late <= kOnTime) ++out_.onTime;
    }
    void addAirports(const Counted& flight, const End& from, const End& to) {
        const bool known = from.at && to.at;
        if (!known) ++out_.unknown;
        if (known && (out_.longest.empty() || flight.miles > out_.longestMiles))
            out_.longestMiles = flight.miles, out_.longest = from.name + " - " + to.name;
        count(visited_, from.name, flight);
        if (to.name != from.name) count(visited_, to.name, flight);
        if (!from.name.empty() && !to.name.empty())
            count(routes_, from.name < to.name ? from.name + " - " + to.name : to.name + " - " + from.name,
                  flight);
        visit(from);
        visit(to);
    }
    /// 0 when an airport is unknown.
    double milesOf(const End& a, const End& b) {
        if (!a.at || !b.at) return 0;
        const bool inOrder = a.name < b.name;
        const End& first = inOrder ? a : b;
        const End& second = inOrder ? b : a;
        CareerRoute& route = map_[{first.name, second.name}];
        if (route.flights++ == 0) {
            route.from = first.name, route.to = second.name;
            route.fromAt = *first.at, route.toAt = *second.at;
            route.miles = map::milesBetween(*a.at, *b.at);
        }
        return route.miles;
    }
    void visit(const End& end) {
        if (!end.at) return;
        CareerAirport& place = out_.places[end.name];
        place.at = *end.at;
        ++place.visits;
    }

    AirportNames airports_;
    std::unordered_map<std::string, std::string> codes_;
    Career out_;
    long long late_ = 0;
    Tallies aircraft_, airlines_, visited_, routes_;
    std::map<std::pair<std::string, std::string>, CareerRoute> map_;
};

} // namespace

Career careerOf(const std::vector<LogRecord>& entries, const Tables& tables, const CareerFilter& filter) {
    Counter counter(tables);
    for (const LogRecord& entry : entries) {
        const auto day = calendarDay(entry.date);
        if (counts(entry, day, filter)) counter.add(entry, day);
    }
    return counter.finish();
}

CareerChoices careerChoices(const std::vector<LogRecord>& entries) {
    std::set<int, std::greater<>> years;
    std::set<std::string> aircraft, airlines;
    for (const LogRecord& entry : entries) {
        if (const auto day = calendarDay(entry.date)) years.insert(day->year);
        aircraft.emplace(entry.aircraft.trimmed());
        airlines.emplace(entry.airline.trimmed());
    }
    aircraft.erase(""), airlines.erase("");
    return {
        {years.begin(), years.end()}, {aircraft.begin(), aircraft.end()}, {airlines.begin(), airlines.end()}};
}

} // namespace gatewise
