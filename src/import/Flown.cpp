#include "import/Flown.h"

#include "import/TailTypes.h"
#include "platform/Machine.h"

#include <algorithm>
#include <map>
#include <span>

namespace gatewise::importer {

namespace {

/// How much of a timetable is made.
constexpr double kRowsSorted = 0.2;
constexpr double kTailsKnown = 0.3;
constexpr double kFlightsKnown = 0.6;

using Rows = std::span<const OnTimeRow>;

/// 0 Monday to 6 Sunday.
int weekdayOf(std::int32_t day) {
    return (day + 5) % 7; // day 0 was a Saturday
}

/// A sort that looks up now and then: parts of the rows first, then twos of parts joined. Not done when the
/// job was cancelled.
template<class Row, class Less> void sortInParts(std::vector<Row>& rows, Less less, const Job& job) {
    constexpr std::size_t part = 65536;
    const auto at = [&](std::size_t i) {
        return rows.begin() + static_cast<std::ptrdiff_t>(std::min(i, rows.size()));
    };
    for (std::size_t from = 0; from < rows.size() && !job.cancelled(); from += part)
        std::sort(at(from), at(from + part), less);
    for (std::size_t width = part; width < rows.size(); width *= 2)
        for (std::size_t from = 0; from + width < rows.size() && !job.cancelled(); from += 2 * width)
            std::inplace_merge(at(from), at(from + width), at(from + 2 * width), less);
}

auto flightOf(const OnTimeRow& r) {
    return std::tie(r.carrier, r.number, r.origin, r.destination);
}

/// Numbers become places in the alphabet, so that the order of rows is that of their texts.
class Sorted {
public:
    Sorted(OnTimeData& data, const Job& job) : data_(data) {
        const auto carriers = data.carriers.ranks();
        const auto airports = data.airports.ranks();
        const auto tails = data.tails.ranks();
        const auto key = [&](const OnTimeRow& r) {
            return std::tuple(carriers[r.carrier], r.number, airports[r.origin], airports[r.destination],
                              r.departure, r.day, r.arrival, tails[r.tail], r.miles);
        };
        sortInParts(
            data.rows, [&](const OnTimeRow& a, const OnTimeRow& b) { return key(a) < key(b); }, job);
        if (job.cancelled()) return;
        const auto same = [&](const OnTimeRow& a, const OnTimeRow& b) { return key(a) == key(b); };
        data.rows.erase(std::unique(data.rows.begin(), data.rows.end(), same), data.rows.end());
    }

    /// Calls `each` with the rows of every carrier's number between two airports, by departure.
    template<class Each> void groups(const Job& job, Each each) const {
        const Rows all(data_.rows);
        Walk walk(job, all.size(), kTailsKnown, kFlightsKnown);
        for (std::size_t from = 0, to = 0; from < all.size() && walk.goesOn(); from = to) {
            while (to < all.size() && flightOf(all[to]) == flightOf(all[from])) ++to;
            each(all.subspan(from, to - from));
        }
    }

private:
    OnTimeData& data_;
};

/// The rows of one flight each: departures within ten minutes of the first, across midnight too.
std::vector<std::vector<OnTimeRow>> clusters(Rows rows) {
    std::vector<std::vector<OnTimeRow>> out;
    for (const OnTimeRow& row : rows) {
        if (out.empty() || row.departure - out.back().front().departure > kSameDeparture) out.emplace_back();
        out.back().push_back(row);
    }
    if (out.size() > 1 &&
        out.front().back().departure + 1440 - out.back().front().departure <= kSameDeparture) {
        out.back().insert(out.back().end(), out.front().begin(), out.front().end());
        out.erase(out.begin());
    }
    return out;
}

/// The key that occurs most often, the first of those that do.
template<class Key> Key mostFrequent(const std::map<Key, int>& counts) {
    const auto less = [](const auto& a, const auto& b) { return a.second < b.second; };
    return std::max_element(counts.begin(), counts.end(), less)->first;
}

/// Whether each carrier's rows span more than two weeks.
std::vector<bool> longCarriers(const OnTimeData& data) {
    constexpr int twoWeeks = 14;
    std::vector<std::pair<int, int>> span(data.carriers.size(), {0, 0});
    for (const OnTimeRow& row : data.rows) {
        auto& [first, last] = span[row.carrier];
        first = first == 0 ? row.day : std::min(first, row.day);
        last = std::max(last, row.day);
    }
    std::vector<bool> out;
    out.reserve(span.size());
    for (const auto& [first, last] : span) out.push_back(last - first + 1 > twoWeeks);
    return out;
}

/// The flight of a cluster; false in `many` when it was scheduled on a single day.
Flight flightOf(const std::vector<OnTimeRow>& rows, const OnTimeData& data, bool& many) {
    Flight out;
    out.from = Origin::Flown;
    out.airline = data.carriers[rows[0].carrier];
    out.origin = data.airports[rows[0].origin];
    out.destination = data.airports[rows[0].destination];
    out.number = rows[0].number;
    std::map<std::pair<int, int>, int> times;
    unsigned days = 0;
    many = false;
    for (const OnTimeRow& row : rows) {
        ++times[{row.departure, row.arrival}];
        days |= 1U << static_cast<unsigned>(weekdayOf(row.day));
        many = many || row.day != rows[0].day;
    }
    out.days = static_cast<std::uint8_t>(days);
    std::tie(out.departure, out.arrival) = mostFrequent(times);
    return out;
}

} // namespace

std::vector<Flight> flownFlights(RawTables& raw, const AircraftTypes& types, bool everyFlight,
                                 Findings& findings, const Job& job) {
    OnTimeData& data = raw.onTime;
    const Sorted sorted(data, job);
    if (job.cancelled()) return {};
    job.progress(kRowsSorted);
    const TailTypes tails(raw, types, job);
    if (job.cancelled()) return {};
    job.progress(kTailsKnown);
    const std::vector<bool> longOnes = longCarriers(data);
    std::vector<Flight> out;
    sorted.groups(job, [&](Rows group) {
        for (const auto& rows : clusters(group)) {
            bool many = false;
            Flight flight = flightOf(rows, data, many);
            if (!many && longOnes[rows[0].carrier] && !everyFlight) {
                findings.other("flights seen on one day only, left out",
                               flight.airline + " " + std::to_string(flight.number) + " " + flight.origin +
                                   " - " + flight.destination);
                continue;
            }
            flight.type = tails.typeOf(rows).code;
            out.push_back(std::move(flight));
        }
    });
    return out;
}

CycleMonth monthOf(const OnTimeData& data) {
    std::map<std::pair<int, int>, long long> counts;
    std::map<std::int32_t, long long> days;
    for (const OnTimeRow& row : data.rows) ++days[row.day];
    for (const auto& [day, count] : days) {
        const DateTime date = fromDaySerial(day);
        counts[{date.year, date.month}] += count;
    }
    CycleMonth out;
    long long best = 0;
    for (const auto& [month, count] : counts)
        if (count >= best) {
            best = count;
            out = {month.first, month.second};
        }
    return out;
}

} // namespace gatewise::importer
