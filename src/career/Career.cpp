#include "career/Career.h"

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

/// Positions of airports by code; of a code that stands in the table twice the first counts.
class Places {
public:
    explicit Places(const Tables& tables) {
        at_.reserve(tables.airports.size());
        for (const auto& airport : tables.airports) {
            const auto code = airport.Icao.trimmed();
            if (code.empty() || !std::isfinite(airport.Latitude) || !std::isfinite(airport.Longitude))
                continue;
            at_.emplace(std::string(code), map::Spot{static_cast<double>(airport.Latitude),
                                                     static_cast<double>(airport.Longitude)});
        }
    }
    [[nodiscard]] const map::Spot* find(const std::string& code) const {
        const auto found = at_.find(code);
        return found == at_.end() ? nullptr : &found->second;
    }

private:
    std::unordered_map<std::string, map::Spot> at_;
};

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

/// Counts one entry after the other.
class Counter {
public:
    explicit Counter(const Tables& tables) : places_(tables) {}

    void add(const LogRecord& entry, const std::optional<DateTime>& day) {
        const std::string from(entry.departureIcao.trimmed());
        const std::string to(entry.arrivalIcao.trimmed());
        const map::Spot* fromAt = places_.find(from);
        const map::Spot* toAt = places_.find(to);
        const bool known = fromAt != nullptr && toAt != nullptr;
        const Counted flight{entry, hoursOf(entry.dayHours) + hoursOf(entry.nightHours),
                             known ? milesOf(from, *fromAt, to, *toAt) : 0};
        addSums(flight);
        if (!known) ++out_.unknown;
        if (known && (out_.longest.empty() || flight.miles > out_.longestMiles))
            out_.longestMiles = flight.miles, out_.longest = from + " - " + to;
        if (day) {
            count(out_.years[day->year], flight);
            count(out_.months[static_cast<std::size_t>(day->month - 1)], flight);
        }
        count(aircraft_, std::string(entry.aircraft.trimmed()), flight);
        count(airlines_, std::string(entry.airline.trimmed()), flight);
        count(airports_, from, flight);
        if (to != from) count(airports_, to, flight);
        if (!from.empty() && !to.empty())
            count(routes_, from < to ? from + " - " + to : to + " - " + from, flight);
        if (fromAt) visit(from, *fromAt);
        if (toAt) visit(to, *toAt);
    }

    Career finish() {
        if (out_.flights > 0) out_.delay = static_cast<double>(late_) / out_.flights;
        out_.aircraft = ranked(std::move(aircraft_));
        out_.airlines = ranked(std::move(airlines_));
        out_.airports = ranked(std::move(airports_));
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
        const int late = minutesLate(flight.entry);
        late_ += late;
        if (late <= kOnTime) ++out_.onTime;
    }
    double milesOf(const std::string& a, const map::Spot& aAt, const std::string& b, const map::Spot& bAt) {
        const bool inOrder = a < b;
        CareerRoute& route = map_[inOrder ? std::pair(a, b) : std::pair(b, a)];
        if (route.flights++ == 0) {
            route.from = inOrder ? a : b, route.to = inOrder ? b : a;
            route.fromAt = inOrder ? aAt : bAt, route.toAt = inOrder ? bAt : aAt;
            route.miles = map::milesBetween(aAt, bAt);
        }
        return route.miles;
    }
    void visit(const std::string& code, const map::Spot& at) {
        CareerAirport& place = out_.places[code];
        place.at = at;
        ++place.visits;
    }

    Places places_;
    Career out_;
    long long late_ = 0;
    Tallies aircraft_, airlines_, airports_, routes_;
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
