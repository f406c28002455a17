#include "import/Registries.h"

#include "import/Header.h"

#include <algorithm>
#include <array>

namespace gatewise::importer {

namespace {

struct OwnColumns {
    OwnColumns() = default;
    explicit OwnColumns(const Header& h)
        : origin(h.column({"origin"})), departure(h.column({"departure"})),
          destination(h.column({"destination"})), arrival(h.column({"arrival"})), miles(h.column({"miles"})),
          days(h.column({"days"})), airline(h.column({"airline"})), number(h.column({"number"})),
          aircraft(h.column({"aircraft"})), seats(h.column({"class"})), meals(h.column({"meals"})),
          reserved(h.column({"reserved"})) {}
    int origin = -1, departure = -1, destination = -1, arrival = -1, miles = -1, days = -1, airline = -1,
        number = -1, aircraft = -1, seats = -1, meals = -1, reserved = -1;
};

/// HHMM, four digits; -1 for anything else.
int timeIn(std::string_view cell) {
    const auto value = wholeIn(cell);
    const bool good = cell.size() == 4 && value && *value >= 0 && *value / 100 < 24 && *value % 100 < 60;
    return good ? static_cast<int>(*value) : -1;
}

/// "12345" as a mask, every day for an empty cell, 0 for anything else.
std::uint8_t daysIn(std::string_view cell) {
    if (cell.empty()) return 127;
    unsigned mask = 0;
    for (const char c : cell) {
        if (c < '1' || c > '7') return 0;
        mask |= 1U << static_cast<unsigned>(c - '1');
    }
    return static_cast<std::uint8_t>(mask);
}

/// "B S Bev" as a mask, -1 for a cell that is missing or no list of meals.
int mealsIn(std::string_view cell, bool there) {
    if (!there) return -1;
    constexpr std::array<std::string_view, 5> names{"B", "L", "D", "S", "Bev"};
    Cells words;
    words.blanks(cell);
    int mask = 0;
    for (std::size_t i = 0; i < words.size(); ++i) {
        const auto* found = std::find(names.begin(), names.end(), words[i]);
        if (found == names.end()) return -1;
        mask |= 1 << (found - names.begin());
    }
    return mask;
}

const char* ownFlight(const Cells& c, const OwnColumns& at, std::vector<OwnFlightIn>& rows) {
    OwnFlightIn out;
    out.origin = upperAscii(cellAt(c, at.origin));
    out.destination = upperAscii(cellAt(c, at.destination));
    out.airline = upperAscii(cellAt(c, at.airline));
    out.aircraft = upperAscii(cellAt(c, at.aircraft));
    out.departure = timeIn(cellAt(c, at.departure));
    out.arrival = timeIn(cellAt(c, at.arrival));
    out.days = daysIn(cellAt(c, at.days));
    out.meals = mealsIn(cellAt(c, at.meals), at.meals >= 0);
    out.reserved = std::string(cellAt(c, at.reserved).substr(0, 1));
    const auto number = wholeIn(cellAt(c, at.number));
    const auto miles = wholeIn(cellAt(c, at.miles));
    const std::string_view seats = cellAt(c, at.seats);
    if (!isCode(out.origin, 3, 4) || !isCode(out.destination, 3, 4)) return "no airport code";
    if (out.departure < 0 || out.arrival < 0) return "no time of day as four digits HHMM";
    if (out.days == 0) return "no days of the week from 1 to 7";
    if (!isCode(out.airline, 2, 3)) return "no airline code";
    if (!out.aircraft.empty() && !isCode(out.aircraft, 1, 4)) return "no aircraft code";
    if (!number || *number < 0 || *number > 9999) return "no flight number from 0 to 9999";
    out.number = static_cast<int>(*number);
    if (miles && *miles >= 0 && *miles <= 32767) out.miles = static_cast<int>(*miles);
    if (seats.size() == 1 && seats[0] >= 'A' && seats[0] <= 'G') out.classCode = std::string(seats);
    rows.push_back(std::move(out));
    return nullptr;
}

} // namespace

Table<OwnFlightIn> readOwnFlights(const Reading& reading) {
    Table<OwnFlightIn> table;
    readHeadedRows<OwnColumns>(
        reading, table, [&](const Cells& c, const OwnColumns& at) { return ownFlight(c, at, table.rows); });
    return table;
}

} // namespace gatewise::importer
