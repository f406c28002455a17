#include "selection/Picks.h"

#include "platform/Text.h"
#include "schedule/FlightTexts.h"
#include "schedule/Lookups.h"

#include <algorithm>
#include <utility>

namespace gatewise {

namespace {

void removeEqualNeighbours(std::vector<PickItem>& items) {
    const auto last = std::unique(items.rbegin(), items.rend(),
                                  [](const PickItem& a, const PickItem& b) { return a.text == b.text; });
    items.erase(items.begin(), last.base());
}

/// The first eight characters, folded, as a number that orders as they do. Most lines differ in them.
std::uint64_t leadingFolded(std::string_view text) {
    std::uint64_t leading = 0;
    for (std::size_t i = 0; i < sizeof leading; ++i)
        leading = leading << 8U | (i < text.size() ? static_cast<unsigned char>(upperCase(text[i])) : 0U);
    return leading;
}

} // namespace

void sortItems(std::vector<PickItem>& items) {
    struct Line {
        std::uint64_t leading;
        std::size_t added;
    };
    std::vector<Line> lines;
    lines.reserve(items.size());
    for (const auto& item : items) lines.push_back({leadingFolded(item.text), lines.size()});
    std::sort(lines.begin(), lines.end(), [&](const Line& a, const Line& b) {
        if (a.leading != b.leading) return a.leading < b.leading;
        const auto& x = items[a.added].text;
        const auto& y = items[b.added].text;
        if (lessFolded(x, y)) return true;
        return !lessFolded(y, x) && a.added < b.added;
    });
    std::vector<PickItem> sorted;
    sorted.reserve(items.size());
    for (const auto& line : lines) sorted.push_back(std::move(items[line.added]));
    items = std::move(sorted);
}

std::vector<PickItem> airportItems(const Tables& tables, const AirportFinder& finder, std::string_view text) {
    std::vector<PickItem> items;
    for (const auto airport : finder.find(text))
        items.push_back({airportHitText(tables.airport(airport)), airport});
    sortItems(items);
    return items;
}

std::vector<PickItem> destinationItems(const Tables& tables, const AirportFinder& finder,
                                       const std::vector<FlightRecord>& flights, std::string_view text) {
    std::vector<PickItem> items;
    const bool all = trimmed(text).empty();
    for (const auto& flight : flights) {
        // A flight that names no airport of this table has no destination to offer.
        if (flight.DestIndex < 0 || flight.DestIndex > tables.AirportCount()) continue;
        if (all || finder.matches(flight.DestIndex, text))
            items.push_back({airportListText(tables.airport(flight.DestIndex)), flight.DestIndex});
    }
    sortItems(items);
    removeEqualNeighbours(items);
    return items;
}

std::vector<PickItem> alternateItems(const Tables& tables, const AirportFinder& finder,
                                     std::string_view text) {
    std::vector<PickItem> items;
    for (const auto airport : finder.find(trimmed(text))) {
        if (airport < tables.AirportCount())
            items.push_back({airportListText(tables.airport(airport)), airport});
    }
    sortItems(items);
    removeEqualNeighbours(items);
    return items;
}

std::vector<PickItem> boardAirlineItems(const Tables& tables, const std::vector<FlightRecord>& flights) {
    std::vector<PickItem> items;
    for (const auto& code : distinctAirlines(flights))
        items.push_back({find_airline(tables, code.view()), 0});
    sortItems(items);
    return items;
}

std::vector<PickItem> airlineItems(const Tables& tables, const std::vector<FlightRecord>& flights) {
    auto items = boardAirlineItems(tables, flights);
    items.insert(items.begin(), {std::string(kAnyAirline), 0});
    sortItems(items);
    return items;
}

std::vector<PickItem> homeAirlineItems(const Tables& tables, std::string_view text) {
    std::vector<PickItem> items;
    for (std::int32_t i = 0; i <= tables.AirlineLast(); ++i) {
        const auto& airline = tables.airlines[static_cast<std::size_t>(i)];
        if (containsNoCase(airline.Name.view(), text))
            items.push_back({std::string(airline.Name.trimmed()), i});
    }
    sortItems(items);
    return items;
}

} // namespace gatewise
