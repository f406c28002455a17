#include "career/CareerPictures.h"

#include <algorithm>
#include <cmath>

namespace gatewise {

namespace {

constexpr std::size_t kTop = 5; // rows of each list
constexpr std::size_t kYears = 12;
constexpr double kThinnest = 1, kThickest = 4; // pixels of a route

std::string whole(double value, const NumberLocale&) {
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
        rows.emplace_back(head + " " + std::to_string(i + 1),
                          list[i].name + ", " + plural(list[i].flights, "flight", "flights"));
    }
}

struct Bars {
    std::vector<std::string> names;
    std::vector<int> flights;
};

/// Bars within a part of the sheet, their names below, the numbers above.
void addBars(Drawing& out, const Bars& bars, double left, double right) {
    constexpr double kFoot = 0.84, kHead = 0.14;
    const int most = std::max(1, *std::max_element(bars.flights.begin(), bars.flights.end()));
    const double pitch = (right - left) / static_cast<double>(bars.names.size());
    out.lines.push_back({{{left, kFoot}, {right, kFoot}}, Tone::Grid});
    for (std::size_t i = 0; i < bars.names.size(); ++i) {
        const double x = left + pitch * static_cast<double>(i);
        const double top = kFoot - (kFoot - kHead) * bars.flights[i] / most;
        const double a = x + pitch * 0.15;
        const double b = x + pitch * 0.85;
        if (bars.flights[i] > 0) {
            out.areas.push_back({{{{a, kFoot}, {a, top}, {b, top}, {b, kFoot}}}, Tone::Bar});
            out.texts.push_back({{x + pitch / 2, top - 0.06}, std::to_string(bars.flights[i])});
        }
        out.texts.push_back({{x + pitch / 2, kFoot + 0.09}, bars.names[i]});
    }
}

} // namespace

std::vector<CareerRow> careerRows(const Career& career, const NumberLocale& numbers) {
    const auto hours = [&](double value) { return numbers.formatSingle("#0.0", static_cast<float>(value)); };
    std::vector<CareerRow> rows{
        {"Flights", std::to_string(career.flights)},
        {"Total hours", hours(career.total())},
        {"Day hours", hours(career.day)},
        {"Night hours", hours(career.night)},
        {"Instrument hours", hours(career.instrument)},
        {"Miles", whole(career.miles, numbers)},
        {"Airports visited", std::to_string(career.airports.size())},
    };
    if (!career.longest.empty())
        rows.emplace_back("Longest flight",
                          career.longest + ", " + whole(career.longestMiles, numbers) + " NM");
    if (career.flights > 0) {
        rows.emplace_back("On time", whole(100.0 * career.onTime / career.flights, numbers) + " %");
        rows.emplace_back("Mean arrival", minutesText(career.delay));
    }
    if (career.unknown > 0)
        rows.emplace_back("Not on the map",
                          plural(career.unknown, "entry", "entries") + " of unknown airports");
    addTop(rows, "Aircraft", career.aircraft);
    addTop(rows, "Airline", career.airlines);
    addTop(rows, "Route", career.routes);
    addTop(rows, "Airport", career.airports);
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
    static constexpr const char* kMonths[] = {"J", "F", "M", "A", "M", "J", "J", "A", "S", "O", "N", "D"};
    Bars months;
    for (std::size_t i = 0; i < career.months.size(); ++i) {
        months.names.emplace_back(kMonths[i]);
        months.flights.push_back(career.months[i].flights);
    }
    addBars(out, months, 0.02, 0.53);
    Bars years;
    const std::size_t skipped = career.years.size() > kYears ? career.years.size() - kYears : 0;
    std::size_t i = 0;
    out.summary = "Flights by year:";
    for (const auto& [year, tally] : career.years) {
        if (i++ < skipped) continue;
        years.names.push_back(std::to_string(year));
        years.flights.push_back(tally.flights);
        out.summary += " " + std::to_string(year) + " " + std::to_string(tally.flights) + ",";
    }
    out.summary.back() = '.';
    if (!years.names.empty())
        addBars(out, years, 0.57, std::min(0.98, 0.57 + 0.08 * static_cast<double>(years.names.size())));
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
                 formatNumber("#####0", route.miles) + " NM",
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
    scene.summary = "Map of " + plural(static_cast<int>(career.map.size()), "route", "routes") + " between " +
                    plural(static_cast<int>(career.places.size()), "airport", "airports") + ", " +
                    plural(career.flights, "flight", "flights");
    if (career.unknown > 0)
        scene.summary += ", " + plural(career.unknown, "entry", "entries") + " of unknown airports";
    return scene;
}

} // namespace gatewise
