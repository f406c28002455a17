#include "career/CareerPictures.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace gatewise {

namespace {

constexpr std::size_t kTop = 5;                // rows of each list
constexpr std::size_t kYears = 12;             // bars
constexpr double kThinnest = 1, kThickest = 4; // pixels of a route
constexpr double kBarsAspect = 4;
constexpr const char* kMonths[] = {"January", "February", "March",     "April",   "May",      "June",
                                   "July",    "August",   "September", "October", "November", "December"};

std::string whole(double value) {
    return formatNumber("#####0", value);
}

std::string plural(int count, const char* one, const char* many) {
    return std::to_string(count) + " " + (count == 1 ? one : many);
}

std::string minutesText(double minutes) {
    const auto rounded = std::lround(minutes);
    return std::to_string(std::labs(rounded)) + (rounded < 0 ? " min early" : " min late");
}

void addTop(std::vector<CareerRow>& rows, const std::string& head, const std::vector<CareerTally>& list) {
    for (std::size_t i = 0; i < std::min(kTop, list.size()); ++i) {
        const std::string code = list[i].code.empty() ? "" : " (" + list[i].code + ")";
        rows.emplace_back(head + " " + std::to_string(i + 1),
                          list[i].name + code + ", " + plural(list[i].flights, "flight", "flights"));
    }
}

std::string hoursWith(double hours, const NumberLocale& numbers) {
    return numbers.formatSingle("#0.0", static_cast<float>(hours));
}

/// What the bars show, with the hours behind.
void addTimes(std::vector<CareerRow>& rows, const Career& career, const NumberLocale& numbers) {
    const auto add = [&](std::string name, const CareerTally& tally) {
        rows.emplace_back(std::move(name), plural(tally.flights, "flight", "flights") + ", " +
                                               hoursWith(tally.hours, numbers) + " hours");
    };
    for (const auto& [year, tally] : career.years) add("Year " + std::to_string(year), tally);
    for (std::size_t i = 0; i < career.months.size(); ++i) {
        if (career.months[i].flights > 0) add(kMonths[i], career.months[i]);
    }
}

struct Bars {
    std::vector<std::string> names;
    std::vector<int> flights;
};

/// Characters that fit into a share of the sheet's width, on the smallest sheet that bars stand on.
std::size_t charactersIn(double share) {
    constexpr double kCharacter = 0.0175;
    return static_cast<std::size_t>(share / kCharacter);
}

/// Bars within a part of the sheet, their names below, the numbers above; where these would not fit beside
/// each other, that of the highest bar alone.
void addBars(Drawing& out, const Bars& bars, double left, double right) {
    constexpr double kFoot = 0.84, kHead = 0.14;
    const auto highest = std::max_element(bars.flights.begin(), bars.flights.end());
    const int most = std::max(1, *highest);
    const double pitch = (right - left) / static_cast<double>(bars.names.size());
    const bool all = std::to_string(most).size() <= charactersIn(pitch);
    out.lines.push_back({{{left, kFoot}, {right, kFoot}}, Tone::Grid});
    for (std::size_t i = 0; i < bars.names.size(); ++i) {
        const double x = left + pitch * static_cast<double>(i);
        const double top = kFoot - (kFoot - kHead) * bars.flights[i] / most;
        const double a = x + pitch * 0.15;
        const double b = x + pitch * 0.85;
        out.texts.push_back({{x + pitch / 2, kFoot + 0.09}, bars.names[i]});
        if (bars.flights[i] == 0) continue;
        out.areas.push_back({{{{a, kFoot}, {a, top}, {b, top}, {b, kFoot}}}, Tone::Bar});
        if (all || bars.flights.begin() + static_cast<std::ptrdiff_t>(i) == highest)
            out.texts.push_back({{x + pitch / 2, top - 0.06}, std::to_string(bars.flights[i])});
    }
}

Bars monthBars(const Career& career) {
    Bars bars;
    for (std::size_t i = 0; i < career.months.size(); ++i) {
        bars.names.emplace_back(1, *kMonths[i]);
        bars.flights.push_back(career.months[i].flights);
    }
    return bars;
}

/// Shares of the sheet's width: where the months end, and where so many years begin and end. Many years take
/// from the months what they need to stand apart.
struct BarsRoom {
    double months, from, to;
};

BarsRoom roomFor(std::size_t years) {
    constexpr std::size_t kMany = 8;
    constexpr double kWidest = 0.1, kEnd = 0.98;
    if (years > kMany) return {0.36, 0.39, 0.99};
    return {0.53, 0.57, std::min(kEnd, 0.57 + kWidest * static_cast<double>(years))};
}

std::size_t shownYears(const Career& career) {
    return std::min(kYears, career.years.size());
}

/// The last years; where they stand close, without their centuries.
Bars yearBars(const Career& career) {
    Bars bars;
    const std::size_t count = shownYears(career);
    const std::size_t skipped = career.years.size() - count;
    const BarsRoom room = roomFor(count);
    const double pitch = (room.to - room.from) / static_cast<double>(std::max<std::size_t>(1, count));
    const bool close = charactersIn(pitch) < 5; // four digits and what parts them from the next
    for (auto year = std::next(career.years.begin(), static_cast<std::ptrdiff_t>(skipped));
         year != career.years.end(); ++year) {
        const std::string name = std::to_string(year->first);
        bars.names.push_back(close && name.size() > 2 ? name.substr(name.size() - 2) : name);
        bars.flights.push_back(year->second.flights);
    }
    return bars;
}

/// "Flights by year: 2001 1, 2002 3; by month: June 4."
std::string barsText(const Career& career) {
    std::string years, months;
    const auto add = [](std::string& out, const std::string& name, int flights) {
        out += (out.empty() ? "" : ", ") + name + " " + std::to_string(flights);
    };
    for (const auto& [year, tally] : career.years) add(years, std::to_string(year), tally.flights);
    for (std::size_t i = 0; i < career.months.size(); ++i) {
        if (career.months[i].flights > 0) add(months, kMonths[i], career.months[i].flights);
    }
    if (years.empty()) return "No flight has a date.";
    return "Flights by year: " + years + "; by month: " + months + ".";
}

} // namespace

std::vector<CareerRow> careerRows(const Career& career, const NumberLocale& numbers) {
    const auto hours = [&](double value) { return hoursWith(value, numbers); };
    std::vector<CareerRow> rows{
        {"Flights", std::to_string(career.flights)},
        {"Total hours", hours(career.total())},
        {"Day hours", hours(career.day)},
        {"Night hours", hours(career.night)},
        {"Instrument hours", hours(career.instrument)},
        {"Miles", whole(career.miles)},
        {"Airports visited", std::to_string(career.airports.size())},
    };
    if (!career.longest.empty())
        rows.emplace_back("Longest flight", career.longest + ", " + whole(career.longestMiles) + " NM");
    if (career.timed > 0) {
        rows.emplace_back("On time", whole(100.0 * career.onTime / career.timed) + " %");
        rows.emplace_back("Mean arrival", minutesText(career.delay));
    }
    if (career.unknown > 0)
        rows.emplace_back("Not on the map",
                          plural(career.unknown, "entry", "entries") + " of unknown airports");
    if (career.unknownAircraft > 0)
        rows.emplace_back("Without a type",
                          plural(career.unknownAircraft, "entry", "entries") + " of unknown aircraft");
    addTop(rows, "Aircraft", career.aircraft);
    addTop(rows, "Airline", career.airlines);
    addTop(rows, "Route", career.routes);
    addTop(rows, "Airport", career.airports);
    addTimes(rows, career, numbers);
    return rows;
}

std::string careerText(const std::vector<CareerRow>& rows) {
    std::string out;
    for (const auto& [name, value] : rows) out.append(name).append("\t").append(value).append("\r\n");
    return out;
}

Drawing careerBars(const Career& career) {
    Drawing out;
    if (career.flights == 0) return out;
    out.aspect = kBarsAspect;
    out.summary = barsText(career);
    const BarsRoom room = roomFor(shownYears(career));
    addBars(out, monthBars(career), 0.02, room.months);
    const Bars years = yearBars(career);
    if (years.names.empty()) return out;
    addBars(out, years, room.from, room.to);
    return out;
}

MapScene careerScene(const Career& career, std::shared_ptr<const map::Land> land) {
    MapScene scene;
    scene.land = std::move(land);
    int most = 1;
    for (const auto& route : career.map) most = std::max(most, route.flights);
    for (const auto& route : career.map) {
        const double share = std::log1p(route.flights) / std::log1p(most);
        scene.routes.push_back(
            {{{route.fromAt.latitude, route.fromAt.longitude}, {route.toAt.latitude, route.toAt.longitude}},
             Tone::Flight,
             kThinnest + (kThickest - kThinnest) * share,
             route.from + " - " + route.to + ", " + plural(route.flights, "flight", "flights") + ", " +
                 whole(route.miles) + " NM",
             -1,
             {}});
    }
    for (const auto& [code, place] : career.places) {
        scene.places.push_back(
            {{place.at.latitude, place.at.longitude},
             Tone::Airport,
             code,
             code + ", " + plural(place.visits, "departure or arrival", "departures and arrivals"),
             -1});
    }
    std::stable_sort(scene.places.begin(), scene.places.end(), [&](const MapPlace& a, const MapPlace& b) {
        return career.places.at(a.name).visits > career.places.at(b.name).visits;
    });
    // Under the pointer the places come first, then the routes.
    int id = 0;
    for (MapPlace& place : scene.places) place.id = id++;
    for (MapRoute& route : scene.routes) route.id = id++;
    scene.summary = "Map of " + plural(static_cast<int>(career.map.size()), "route", "routes") + ", " +
                    plural(static_cast<int>(career.places.size()), "airport", "airports");
    if (career.unknown > 0)
        scene.summary += "; " + plural(career.unknown, "entry", "entries") + " of unknown airports";
    return scene;
}

} // namespace gatewise
