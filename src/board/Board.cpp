#include "board/Board.h"

#include "board/Clock.h"
#include "board/SortBoard.h"
#include "platform/TimeOfDay.h"
#include "schedule/FlightTexts.h"
#include "schedule/Lookups.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <span>
#include <string>

namespace gatewise {

namespace {

/// A status and the fewest minutes from now at which it holds; rows run from late to early.
struct StatusRow {
    int from;
    std::string_view text;
};
constexpr int kAnyTime = -10000;
constexpr std::array<StatusRow, 4> kDepartureStatus = {
    {{60, "ON TIME"}, {20, "AT GATE"}, {1, "BOARDING"}, {kAnyTime, "DEPARTED"}}};
constexpr std::array<StatusRow, 3> kArrivalStatus = {
    {{11, "ON TIME"}, {1, "ARRIVING"}, {kAnyTime, "AT GATE"}}};

/// How departures and arrivals differ.
struct BoardKind {
    std::int16_t FlightRecord::*time;     // at this airport
    std::int16_t FlightRecord::*otherEnd; // index of the other airport
    int earliest;                         // minutes from now at which a flight is still shown
    std::size_t heldBack;                 // entries of the list that the scan never fills
    std::span<const StatusRow> status;
};
const BoardKind kDepartures = {&FlightRecord::DepartureTime, &FlightRecord::DestIndex, -60, 0,
                               kDepartureStatus};
const BoardKind kArrivals = {&FlightRecord::ArrivalTime, &FlightRecord::OriginIndex, -30, 1, kArrivalStatus};

constexpr int kDotsSelecting = 3;
constexpr int kDotsSorting = 4;

std::string_view statusOf(std::span<const StatusRow> rows, int minutes) {
    for (const auto& row : rows) {
        if (minutes >= row.from) return row.text;
    }
    return rows.back().text;
}

/// "city,name" of the airports on a board, each made once.
class CityTexts {
public:
    explicit CityTexts(const Tables& tables) : tables_(tables), slots_(tables.airports.size(), kNone) {}

    /// Number of the text of an airport, counted from 0 in the order in which they are asked for.
    std::uint32_t slotOf(int airport) {
        const auto& record = tables_.airport(airport);
        auto& slot = slots_[static_cast<std::size_t>(&record - tables_.airports.data())];
        if (slot == kNone) {
            slot = static_cast<std::uint32_t>(texts_.size());
            auto& text = texts_.emplace_back(record.City.trimmed());
            text.append(1, ',').append(record.Name.trimmed());
        }
        return slot;
    }
    [[nodiscard]] const std::string& text(std::uint32_t slot) const { return texts_[slot]; }

    /// For each slot the number of smaller texts: texts that are equal share it.
    [[nodiscard]] std::vector<std::uint64_t> ranks() const {
        std::vector<std::uint32_t> order(texts_.size());
        std::iota(order.begin(), order.end(), 0U);
        std::sort(order.begin(), order.end(), [&](auto a, auto b) { return texts_[a] < texts_[b]; });
        std::vector<std::uint64_t> ranks(texts_.size());
        for (std::size_t i = 1; i < order.size(); ++i) {
            const bool equal = texts_[order[i]] == texts_[order[i - 1]];
            ranks[order[i]] = equal ? ranks[order[i - 1]] : i;
        }
        return ranks;
    }

private:
    static constexpr std::uint32_t kNone = static_cast<std::uint32_t>(-1);
    const Tables& tables_;
    std::vector<std::uint32_t> slots_;
    std::vector<std::string> texts_;
};

/// A flight that belongs on the board.
struct Chosen {
    std::uint32_t flight;
    std::uint32_t city; // slot of its text
    std::int16_t minutes;
};

/// What all steps of one build work on.
struct Build {
    const std::vector<FlightRecord>& flights;
    const Tables& tables;
    const BoardRequest& request;
    const BoardKind& kind;
    CityTexts cities{tables};
};

std::string flightText(const FlightRecord& flight) {
    return std::string(1, ' ').append(flight.AirlineCode.view()).append(fourDigits(flight.FlightNumber));
}

// Entries are filled and blanked in place: their texts keep the memory of the build before.
void fill(BoardEntry& entry, const Build& build, const Chosen& chosen) {
    const auto& flight = build.flights[chosen.flight];
    entry.FlightText = flightText(flight);
    entry.CityText = build.cities.text(chosen.city);
    entry.TimeText = fourDigits(flight.*build.kind.time);
    entry.StatusText = statusOf(build.kind.status, chosen.minutes);
    entry.Minutes = chosen.minutes;
    entry.FlightIndex = static_cast<std::int32_t>(chosen.flight);
    entry.RowFlag = 0;
}

void blankFrom(std::vector<BoardEntry>& list, std::size_t first) {
    for (std::size_t i = first; i < list.size(); ++i) {
        auto& entry = list[i];
        entry.FlightText.clear(), entry.CityText.clear(), entry.TimeText.clear(), entry.StatusText.clear();
        entry.Minutes = 0, entry.FlightIndex = 0, entry.RowFlag = 0;
    }
}

/// The flights that belong on the board, in the order of their list.
std::vector<Chosen> choose(Build& build) {
    std::vector<Chosen> chosen;
    const auto& request = build.request;
    const bool anyAirline = request.BoardAirlineCode.view() == kAnyAirlineCode;
    const std::string_view airline = request.BoardAirlineCode.trimmed();
    const auto midnight = minutesFromNow(request.hoursText, request.minutesText, 0);
    if (!midnight) return chosen;

    const auto& flights = build.flights;
    chosen.reserve(flights.size());
    for (std::uint32_t index = 0; index < flights.size(); ++index) {
        const auto& flight = flights[index];
        if (!anyAirline && flight.AirlineCode.trimmed() != airline) continue;
        const auto& tables = build.tables;
        if (tables.airport(flight.OriginIndex).Icao == tables.airport(flight.DestIndex).Icao) continue;
        const auto time = timeOfDay(flight.*build.kind.time);
        if (!time || !get_day(flight.DaysMask, request.day)) continue;
        const int minutes = *midnight + *time;
        if (minutes < build.kind.earliest) continue;
        const auto city = build.cities.slotOf(flight.*build.kind.otherEnd);
        chosen.push_back({index, city, static_cast<std::int16_t>(minutes)});
        if (chosen.size() + build.kind.heldBack >= flights.size()) break;
    }
    return chosen;
}

constexpr std::string_view kTextSentinel = "zzzzzzzzzz";
constexpr int kTimeSentinel = 9999;

std::uint64_t bytesOf(std::string_view text, std::size_t from) {
    std::uint64_t bytes = 0;
    for (std::size_t i = from; i < from + sizeof bytes; ++i)
        bytes = bytes << 8U | (i < text.size() ? static_cast<unsigned char>(text[i]) : 0U);
    return bytes;
}

std::vector<BoardSortKey> sortKeys(const Build& build, const std::vector<Chosen>& chosen) {
    std::vector<BoardSortKey> keys;
    keys.reserve(chosen.size());
    if (build.request.sort == BoardSort::City) {
        const auto ranks = build.cities.ranks();
        for (const auto& c : chosen)
            keys.push_back({ranks[c.city], 0, build.cities.text(c.city) < kTextSentinel});
        return keys;
    }
    for (const auto& c : chosen) {
        const auto& flight = build.flights[c.flight];
        if (build.request.sort == BoardSort::Time) {
            const int time = flight.*build.kind.time; // a time of day, so not negative
            keys.push_back({static_cast<std::uint64_t>(time), 0, time < kTimeSentinel});
        } else {
            const std::string text = flightText(flight); // ten characters at the most
            keys.push_back({bytesOf(text, 0), bytesOf(text, 8), text < kTextSentinel});
        }
    }
    return keys;
}

/// Which of the chosen flights stands at each place of the list.
std::vector<std::uint32_t> placesOf(const Build& build, const std::vector<Chosen>& chosen) {
    if (build.request.sort != BoardSort::None) return SortBoard(sortKeys(build, chosen));
    std::vector<std::uint32_t> unsorted(chosen.size());
    std::iota(unsorted.begin(), unsorted.end(), 0U);
    return unsorted;
}

/// Copies the first `count` sorted entries to the rows, neighbours of the same flight once.
void copyRows(BoardLists& lists, std::size_t count) {
    const auto& list = lists.BoardList;
    std::size_t n = 0;
    for (std::size_t i = 0; i < count; ++i) {
        lists.BoardRows[n++] = list[i];
        while (i + 1 < list.size() && list[i + 1].FlightText == list[i].FlightText) {
            ++i;
            // A run of repeats up to the list's very end leaves without setting the number of rows.
            if (i + 1 == list.size()) return blankFrom(lists.BoardRows, n);
        }
    }
    blankFrom(lists.BoardRows, n);
    lists.BoardRowCount = static_cast<int>(n) - 1;
}

void rebuild(Build build, BoardLists& lists, const WaitDots& waitDots) {
    lists.BoardList.resize(build.flights.size());
    lists.BoardRows.resize(build.flights.size());
    if (waitDots) waitDots(kDotsSelecting);
    const auto chosen = choose(build);
    if (waitDots) waitDots(kDotsSorting);
    const auto places = placesOf(build, chosen);
    for (std::size_t i = 0; i < places.size(); ++i) fill(lists.BoardList[i], build, chosen[places[i]]);
    blankFrom(lists.BoardList, places.size());
    copyRows(lists, places.size());
}

} // namespace

void BuildDepartures(const std::vector<FlightRecord>& flights, const Tables& tables,
                     const BoardRequest& request, BoardLists& lists, const WaitDots& waitDots) {
    rebuild({flights, tables, request, kDepartures}, lists, waitDots);
}

void BuildArrivals(const std::vector<FlightRecord>& flights, const Tables& tables,
                   const BoardRequest& request, BoardLists& lists, const WaitDots& waitDots) {
    rebuild({flights, tables, request, kArrivals}, lists, waitDots);
}

} // namespace gatewise
